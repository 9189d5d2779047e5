// A horizontal slider with tick marks.
#pragma once

#include <string>
#include <utility>

#include "forms/range_control.h"

namespace forms {

class Slider : public RangeControl {
 public:
  Slider(Form& form, std::string name) : RangeControl(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::Slider; }

  int tickFrequency() const { return tickFrequency_; }
  void setTickFrequency(int every) {
    if (tickFrequency_ == every) return;
    tickFrequency_ = every;
    changed(Change::Range);
  }

 private:
  int tickFrequency_ = 1;
};

}  // namespace forms
