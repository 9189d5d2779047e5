#include <windows.h>

#include "os/desktop.h"

namespace os {

namespace {

// Position and size are 0: the taskbar holds its place by itself and takes no other one.
void PlaceTaskbar(std::intptr_t window, UINT flags) {
  SetWindowPos(reinterpret_cast<HWND>(window), nullptr, 0, 0, 0, 0, flags);
}

class DesktopWin final : public Desktop {
 public:
  int showCursor(bool show) override { return ShowCursor(show ? TRUE : FALSE); }

  void moveCursor(int x, int y) override { SetCursorPos(x, y); }

  std::intptr_t findTaskbar() override {
    return reinterpret_cast<std::intptr_t>(FindWindowW(L"Shell_traywnd", L""));
  }

  void hideTaskbar(std::intptr_t window) override { PlaceTaskbar(window, SWP_HIDEWINDOW); }

  void showTaskbar(std::intptr_t window) override { PlaceTaskbar(window, SWP_SHOWWINDOW); }

  void setScreenSaverRunning(bool running) override {
    static_assert(SPI_SETSCREENSAVERRUNNING == 97);
    UINT scratch = 0;
    SystemParametersInfoW(SPI_SETSCREENSAVERRUNNING, running ? TRUE : FALSE, &scratch, 0);
  }
};

}  // namespace

std::unique_ptr<Desktop> MakeDesktop() { return std::make_unique<DesktopWin>(); }

}  // namespace os
