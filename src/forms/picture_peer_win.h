// Picture boxes, images and live views as real windows.
#pragma once

#include <span>

#include "forms/control_peer_win.h"
#include "forms/live_view.h"
#include "forms/picture_boxes.h"
#include "os/dib_win.h"

namespace forms {

// The window class of all.
constexpr const wchar_t* kPictureClass = L"LumoraPicture";

class DrawnPeer : public ControlPeer {
 public:
  DrawnPeer(Control& control, PeerOwner& owner);

  // Everything is drawn anew with the next paint message.
  void invalidate();

  // The control was drawn on inside `areas` (its own pixels).
  virtual void drawn(std::span<const base::PixelRect>) { invalidate(); }

 protected:
  WindowRecipe recipe() const override { return {kPictureClass, 0, 0}; }
  void onChange(Change change) override;
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  // Draws `area` of a window of `size` pixels; the target's top left corner is the area's.
  virtual void draw(base::BitmapView target, const base::PixelRect& area, base::PixelSize size) = 0;

 private:
  void paint();

  bool pressed_ = false;
};

class PictureBoxPeer : public DrawnPeer {
 public:
  PictureBoxPeer(PictureBox& box, PeerOwner& owner) : DrawnPeer(box, owner), box_(box) {}

 protected:
  void draw(base::BitmapView target, const base::PixelRect& area, base::PixelSize size) override;

 private:
  PictureBox& box_;
};

class ImagePeer : public DrawnPeer {
 public:
  ImagePeer(Image& image, PeerOwner& owner) : DrawnPeer(image, owner), image_(image) {}

 protected:
  void onChange(Change change) override;
  void draw(base::BitmapView target, const base::PixelRect& area, base::PixelSize size) override;

 private:
  Image& image_;
  base::SharedBitmap fitted_;  // as it was drawn last; null = to be drawn anew
};

class LiveViewPeer : public DrawnPeer {
 public:
  LiveViewPeer(LiveView& view, PeerOwner& owner) : DrawnPeer(view, owner), view_(view) {}
  void drawn(std::span<const base::PixelRect> areas) override;

 protected:
  void draw(base::BitmapView target, const base::PixelRect& area, base::PixelSize size) override;

 private:
  LiveView& view_;
};

}  // namespace forms
