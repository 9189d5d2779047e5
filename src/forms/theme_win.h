// The system's visual style.
#pragma once

#include <windows.h>

#include <uxtheme.h>

namespace forms {

// The style of one class of control, for a scope. The library behind it is none of those that the system
// loads for every program from its own folder, so it is loaded from there by name and not by the import
// table, which would look beside the program first.
class Theme {
 public:
  Theme(HWND window, const wchar_t* controlClass);
  ~Theme();
  Theme(const Theme&) = delete;
  Theme& operator=(const Theme&) = delete;

  // False without a visual style.
  explicit operator bool() const { return theme_ != nullptr; }

  // False when it could not be drawn.
  bool drawBackground(HDC dc, int part, int state, const RECT& area) const;

 private:
  HTHEME theme_;
};

}  // namespace forms
