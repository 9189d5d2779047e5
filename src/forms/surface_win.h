// How dialogs look on this machine: fonts, colours, dots per inch, visual style.
#pragma once

#include <windows.h>

#include <uxtheme.h>

#include <string>

#include "base/color.h"
#include "os/handles_win.h"

namespace forms {

// Dots per inch of the screen on which a window stands.
int WindowDpi(HWND window);

// The font of the system's own messages, at a number of dots per inch.
os::OwnedFont MakeMessageFont(int dpi);

// A colour as the graphics system takes it; system colours are the user's.
COLORREF ToColorRef(base::PackedColor color);

// The colour of text in a field. Themes of high contrast have fields whose background is nearly that of the
// text, because it is a colour of other things; what can be typed or chosen there stays readable.
COLORREF FieldTextColor(bool takesInput, COLORREF background);

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

// How one line of a list is drawn by its owner.
struct ListLine {
  std::wstring text;
  bool takesInput = true;
  bool faint = false;       // what it names is not there
  COLORREF background = 0;  // where the line is not selected
  int indent = 0;           // pixels
  UINT ellipsis = 0;        // DrawText's way to shorten it
};
void DrawListLine(const DRAWITEMSTRUCT& item, const ListLine& line, int dpi);

// What a tab page shows between its controls, as one colour.
COLORREF TabPageColor(HWND tabControl);

// Pixels that a line of a font takes in height.
int LineHeight(HWND window, HFONT font);

}  // namespace forms
