// Labels and text boxes as real windows.
#pragma once

#include "forms/control_peer_win.h"
#include "forms/texts.h"

namespace forms {

class LabelPeer : public ControlPeer {
 public:
  LabelPeer(Label& label, PeerOwner& owner) : ControlPeer(label, owner), label_(label) {}

 protected:
  WindowRecipe recipe() const override;
  std::string windowText() const override { return label_.caption(); }
  void onChange(Change change) override;

 private:
  Label& label_;
};

class TextBoxPeer : public ControlPeer {
 public:
  TextBoxPeer(TextBox& box, PeerOwner& owner) : ControlPeer(box, owner), box_(box) {}
  void onCommand(int code) override;
  HBRUSH onColor(HDC dc, UINT message) override;

 protected:
  WindowRecipe recipe() const override;
  std::string windowText() const override { return box_.text(); }
  void fill() override;
  void onChange(Change change) override;
  base::PixelRect windowPlace() const override;
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  std::string shownText() const;

  TextBox& box_;
  os::OwnedBrush background_;
  COLORREF backgroundColor_ = CLR_INVALID;
};

}  // namespace forms
