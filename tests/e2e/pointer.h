// The user's pointer: real input, for whatever window is under it.
#pragma once

#include <windows.h>

namespace e2e {

void ClickMouse();  // where it is
void ClickAt(int x, int y);
void MoveMouseTo(int x, int y);

// Sees moves that come from elsewhere while it lives and this process's messages run; one at a time. A
// display tells a window that comes where the pointer is of that place: on a busy machine after the pointer's
// next move, and then it is a way back that nobody has made.
class StrayMoves {
 public:
  StrayMoves();
  ~StrayMoves();
  StrayMoves(const StrayMoves&) = delete;
  StrayMoves& operator=(const StrayMoves&) = delete;

  bool any() const;

 private:
  HHOOK hook_;
};

}  // namespace e2e
