// Sliders and scroll bars as real windows.
#include <windows.h>

#include <commctrl.h>
#include <cstdlib>

#include "forms/peers_win.h"
#include "forms/ranges.h"

namespace forms {

namespace {

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

}  // namespace

WindowRecipe SliderPeer::recipe() const {
  return {TRACKBAR_CLASSW, WS_TABSTOP | WS_GROUP | TBS_HORZ | TBS_AUTOTICKS, 0, true};
}

void SliderPeer::fill() {
  send(TBM_SETRANGEMIN, FALSE, slider_.lowest());
  send(TBM_SETRANGEMAX, FALSE, slider_.highest());
  send(TBM_SETLINESIZE, 0, slider_.smallChange());
  send(TBM_SETPAGESIZE, 0, slider_.largeChange());
  send(TBM_SETTICFREQ, static_cast<WPARAM>(slider_.tickFrequency()));
  send(TBM_SETPOS, TRUE, slider_.value());
}

void SliderPeer::onChange(Change change) {
  if (change == Change::Range) fill();
  if (change == Change::Value && send(TBM_GETPOS) != slider_.value()) send(TBM_SETPOS, TRUE, slider_.value());
}

void SliderPeer::onScroll(int, int) {
  if (deaf()) return;
  owner().raise([this] { slider_.userSetValue(static_cast<int>(send(TBM_GETPOS))); });
}

WindowRecipe ScrollBarPeer::recipe() const {
  return {L"SCROLLBAR", WS_TABSTOP | WS_GROUP | SBS_VERT, 0, true};
}

// The window counts from its top, 0 to the distance of the limits.
int ScrollBarPeer::positionOf(int value) const { return std::abs(value - bar_.min()); }

int ScrollBarPeer::valueAt(int position) const {
  return bar_.min() <= bar_.max() ? bar_.min() + position : bar_.min() - position;
}

void ScrollBarPeer::fill() {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_POS;
  info.nMax = bar_.highest() - bar_.lowest();
  info.nPos = positionOf(bar_.value());
  SetScrollInfo(window(), SB_CTL, &info, TRUE);
}

void ScrollBarPeer::onChange(Change change) {
  if (change == Change::Range || change == Change::Value) fill();
}

void ScrollBarPeer::onScroll(int code, int) {
  if (deaf()) return;
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_ALL;
  GetScrollInfo(window(), SB_CTL, &info);
  int position = positionOf(bar_.value());
  switch (code) {
    case SB_LINEUP:
      position -= bar_.smallChange();
      break;
    case SB_LINEDOWN:
      position += bar_.smallChange();
      break;
    case SB_PAGEUP:
      position -= bar_.largeChange();
      break;
    case SB_PAGEDOWN:
      position += bar_.largeChange();
      break;
    case SB_TOP:
      position = info.nMin;
      break;
    case SB_BOTTOM:
      position = info.nMax;
      break;
    case SB_THUMBTRACK:
      position = info.nTrackPos;
      break;
    default:
      return;
  }
  owner().raise([this, position] { bar_.userSetValue(valueAt(position)); });
}

std::unique_ptr<ControlPeer> MakePeer(Slider& control, PeerOwner& owner) {
  return std::make_unique<SliderPeer>(control, owner);
}

std::unique_ptr<ControlPeer> MakePeer(ScrollBar& control, PeerOwner& owner) {
  return std::make_unique<ScrollBarPeer>(control, owner);
}

}  // namespace forms
