// Windows of the program's own classes, whose messages go to the object that made them.
#pragma once

#include <windows.h>

namespace os {

// Registers a class with the arrow as its cursor. A name that is registered already stays as it is.
inline void RegisterWindowClass(const wchar_t* name, WNDPROC procedure, UINT style = 0) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  description.style = style;
  description.lpfnWndProc = procedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.lpszClassName = name;
  RegisterClassExW(&description);
}

// The object behind a window: the last argument of CreateWindowEx, taken over with the window's first
// message. Null before that, and after LeaveWindow().
template <typename Object>
Object* ObjectOf(HWND window, UINT message, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
  }
  return reinterpret_cast<Object*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

// From now on no message of the window goes to its object, which may end before the window.
inline void LeaveWindow(HWND window) { SetWindowLongPtrW(window, GWLP_USERDATA, 0); }

}  // namespace os
