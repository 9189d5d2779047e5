// Sliders and scroll bars as real windows.
#pragma once

#include "forms/control_peer_win.h"
#include "forms/ranges.h"

namespace forms {

class SliderPeer : public ControlPeer {
 public:
  SliderPeer(Slider& slider, PeerOwner& owner) : ControlPeer(slider, owner), slider_(slider) {}
  void onScroll(int code, int position) override;

 protected:
  WindowRecipe recipe() const override;
  void fill() override;
  void onChange(Change change) override;

 private:
  Slider& slider_;
};

class ScrollBarPeer : public ControlPeer {
 public:
  ScrollBarPeer(ScrollBar& bar, PeerOwner& owner) : ControlPeer(bar, owner), bar_(bar) {}
  void onScroll(int code, int position) override;

 protected:
  WindowRecipe recipe() const override;
  void fill() override;
  void onChange(Change change) override;

 private:
  int positionOf(int value) const;
  int valueAt(int position) const;

  ScrollBar& bar_;
};

}  // namespace forms
