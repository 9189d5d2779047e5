#include <windows.h>

#include "os/desktop.h"

namespace os {

namespace {

// A property of the taskbar's window: it outlives this program, goes with the window, and is set without a
// message to the window's owner.
constexpr const wchar_t* kHiddenMark = L"LumoraScreenSaver.HidTaskbar";

HWND HandleOf(std::intptr_t window) { return reinterpret_cast<HWND>(window); }

// Position and size are 0: the taskbar holds its place by itself and takes no other one. The request is put
// into the queue of the window's owner, which need not answer.
void PlaceTaskbar(std::intptr_t window, UINT flags) {
  SetWindowPos(HandleOf(window), nullptr, 0, 0, 0, 0, flags | SWP_ASYNCWINDOWPOS);
}

class DesktopWin final : public Desktop {
 public:
  int showCursor(bool show) override { return ShowCursor(show ? TRUE : FALSE); }

  void moveCursor(int x, int y) override { SetCursorPos(x, y); }

  std::intptr_t findTaskbar() override {
    return reinterpret_cast<std::intptr_t>(FindWindowW(L"Shell_traywnd", L""));
  }

  void hideTaskbar(std::intptr_t window) override {
    SetPropW(HandleOf(window), kHiddenMark, HandleOf(1));  // before the call: it may be our last
    PlaceTaskbar(window, SWP_HIDEWINDOW);
  }

  void showTaskbar(std::intptr_t window) override {
    PlaceTaskbar(window, SWP_SHOWWINDOW);
    RemovePropW(HandleOf(window), kHiddenMark);
  }

  std::intptr_t findMarkedTaskbar() override {
    const std::intptr_t window = findTaskbar();
    return GetPropW(HandleOf(window), kHiddenMark) ? window : 0;
  }

  void setScreenSaverRunning(bool running) override {
    static_assert(SPI_SETSCREENSAVERRUNNING == 97);
    UINT scratch = 0;
    SystemParametersInfoW(SPI_SETSCREENSAVERRUNNING, running ? TRUE : FALSE, &scratch, 0);
  }
};

}  // namespace

std::unique_ptr<Desktop> MakeDesktop() { return std::make_unique<DesktopWin>(); }

}  // namespace os
