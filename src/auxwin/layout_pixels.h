// Layouts of the small windows are in pixels of 1/96 inch; controls stand in twips.
#pragma once

#include "forms/control.h"

namespace auxwin {

inline constexpr float kTwips = 15;  // of one pixel of a layout

inline void Place(forms::Control& control, float left, float top, float width, float height) {
  control.move(left * kTwips, top * kTwips, width * kTwips, height * kTwips);
}

}  // namespace auxwin
