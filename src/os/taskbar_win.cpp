#include "os/taskbar_win.h"

#include <windows.h>

namespace os {

namespace {

// Position and size are 0: the taskbar holds its place by itself and takes no other one.
void Place(std::intptr_t window, UINT flags) {
  SetWindowPos(reinterpret_cast<HWND>(window), nullptr, 0, 0, 0, 0, flags);
}

}  // namespace

std::intptr_t TaskbarWin::find() {
  return reinterpret_cast<std::intptr_t>(FindWindowW(L"Shell_traywnd", L""));
}

void TaskbarWin::hide(std::intptr_t window) { Place(window, SWP_HIDEWINDOW); }

void TaskbarWin::show(std::intptr_t window) { Place(window, SWP_SHOWWINDOW); }

}  // namespace os
