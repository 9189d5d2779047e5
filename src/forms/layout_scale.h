// How a form's layout follows the font of the system's dialogs.
#pragma once

#include <functional>
#include <string>

namespace forms {

class Form;

// A font as text is laid out with it, in pixels of the form's screen.
struct FontMeasure {
  std::function<int(const std::string&)> widthOf;
  int lineHeight = 0;
};

struct LayoutScale {
  float horizontal = 1;
  float vertical = 1;

  bool operator==(const LayoutScale&) const = default;
};

// By how much the layout has to grow beyond the places that its form was built with, so that no caption is
// cut in this font and everything else keeps its proportions. Never less than 1: a layout is built for the
// system's usual font.
LayoutScale ScaleForFont(const Form& form, const FontMeasure& font);

}  // namespace forms
