// A vertical scroll bar. Its top is its minimum: with the greater limit as minimum, up gives more.
#pragma once

#include <string>
#include <utility>

#include "forms/range_control.h"

namespace forms {

class ScrollBar : public RangeControl {
 public:
  ScrollBar(Form& form, std::string name) : RangeControl(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::ScrollBar; }
};

}  // namespace forms
