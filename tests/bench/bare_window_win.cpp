#include <windows.h>

#include "bench/bare_window.h"

namespace bench {

namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN) DestroyWindow(window);
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int RunBareWindow() {
  WNDCLASSW description{};
  description.lpfnWndProc = Procedure;
  description.lpszClassName = kBareWindowClass;
  description.hbrBackground = CreateSolidBrush(RGB(128, 0, 0));
  RegisterClassW(&description);
  const HWND window = CreateWindowExW(WS_EX_TOPMOST, kBareWindowClass, L"", WS_POPUP | WS_VISIBLE, 0, 0,
                                      GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), nullptr,
                                      nullptr, nullptr, nullptr);
  SetForegroundWindow(window);
  SetFocus(window);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}

}  // namespace bench
