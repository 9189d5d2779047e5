// The mouse cursor.
#pragma once

namespace os {

class Cursor {
 public:
  virtual ~Cursor() = default;

  // Moves the display counter up (true) or down by one and returns it; the cursor shows while it is 0 or
  // more.
  virtual int showCounter(bool show) = 0;

  // In pixels of the screen; the system clips a place beyond the screen to its nearest corner or edge.
  virtual void moveTo(int x, int y) = 0;
};

}  // namespace os
