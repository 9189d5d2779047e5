// Picture boxes and images as real windows, drawn from a back buffer.
#pragma once

#include "forms/control_peer_win.h"
#include "forms/picture_boxes.h"
#include "os/dib_win.h"

namespace forms {

// The window class of both.
constexpr const wchar_t* kPictureClass = L"LumoraPicture";

class DrawnPeer : public ControlPeer {
 public:
  DrawnPeer(Control& control, PeerOwner& owner);

  // Draws anew with the next paint message.
  void invalidate();

 protected:
  WindowRecipe recipe() const override { return {kPictureClass, 0, 0}; }
  void onChange(Change change) override;
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  // Draws the whole window.
  virtual void draw(base::BitmapView target, base::PixelSize size) = 0;

 private:
  void paint();

  os::Dib buffer_;
  base::PixelSize bufferSize_;
  bool drawn_ = false;
  bool pressed_ = false;
};

class PictureBoxPeer : public DrawnPeer {
 public:
  PictureBoxPeer(PictureBox& box, PeerOwner& owner) : DrawnPeer(box, owner), box_(box) {}

 protected:
  void draw(base::BitmapView target, base::PixelSize size) override;

 private:
  PictureBox& box_;
};

class ImagePeer : public DrawnPeer {
 public:
  ImagePeer(Image& image, PeerOwner& owner) : DrawnPeer(image, owner), image_(image) {}

 protected:
  void draw(base::BitmapView target, base::PixelSize size) override;

 private:
  Image& image_;
};

}  // namespace forms
