// The mouse cursor of this machine.
#pragma once

#include "os/cursor.h"

namespace os {

class CursorWin : public Cursor {
 public:
  int showCounter(bool show) override;
  void moveTo(int x, int y) override;
};

}  // namespace os
