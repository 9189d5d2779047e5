// What all list boxes have in common as real windows.
#pragma once

#include <string>

#include "forms/control_peer_win.h"
#include "forms/surface_win.h"

namespace forms {

// A line that is too long is cut in the middle of its path, so that the name stays readable.
class LinesPeer : public ControlPeer {
 public:
  LinesPeer(Control& control, PeerOwner& owner) : ControlPeer(control, owner) {}
  bool onDrawItem(const DRAWITEMSTRUCT& item) override;
  HBRUSH onColor(HDC dc, UINT message) override;

 protected:
  WindowRecipe recipe() const override;

  // How a line differs from the others: set in, faint, selected in its own way.
  virtual void styleLine(DRAWITEMSTRUCT&, ListLine&) const {}

  // Puts all lines into the window in one go.
  template <typename TextOf>
  void fillLines(std::size_t count, TextOf textOf) {
    beginFilling(count);
    for (std::size_t i = 0; i < count; ++i) addLine(kAtEnd, textOf(i));
    endFilling();
  }
  void addLine(WPARAM at, const std::string& text) const;
  void measureLines() const;
  void onPlaced() override { measureLines(); }

 private:
  static constexpr WPARAM kAtEnd = static_cast<WPARAM>(-1);

  void beginFilling(std::size_t count) const;
  void endFilling() const;
};

}  // namespace forms
