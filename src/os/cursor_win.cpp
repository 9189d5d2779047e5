#include "os/cursor_win.h"

#include <windows.h>

namespace os {

int CursorWin::showCounter(bool show) { return ShowCursor(show ? TRUE : FALSE); }

void CursorWin::moveTo(int x, int y) { SetCursorPos(x, y); }

}  // namespace os
