// How dialogs look on this machine: fonts, colours behind controls, dots per inch.
#pragma once

#include <windows.h>

#include "base/color.h"
#include "os/handles_win.h"

namespace forms {

// Dots per inch of the screen on which a window stands.
int WindowDpi(HWND window);

// The font of the system's own messages, at a number of dots per inch.
os::OwnedFont MakeMessageFont(int dpi);

// A colour as the graphics system takes it; system colours are the user's.
COLORREF ToColorRef(base::PackedColor color);

// What a tab page shows between its controls, as one colour.
COLORREF TabPageColor(HWND tabControl);

// Pixels that a line of a font takes in height.
int LineHeight(HWND window, HFONT font);

}  // namespace forms
