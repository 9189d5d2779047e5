// Controls with a whole number between two limits.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "forms/control.h"

namespace forms {

// The minimum may be the greater of the two limits; the value then falls from the start of the control to its
// end.
class RangeControl : public Control {
 public:
  RangeControl(Form& form, std::string name) : Control(form, std::move(name)) {}

  int min() const { return min_; }
  int max() const { return max_; }
  int smallChange() const { return smallChange_; }
  int largeChange() const { return largeChange_; }
  int lowest() const { return min_ < max_ ? min_ : max_; }
  int highest() const { return min_ < max_ ? max_ : min_; }

  // The value is clipped to the new limits without an event. Steps are 1 or more.
  void setRange(int min, int max, int smallChange, int largeChange);

  int value() const { return value_; }

  // A value beyond the limits is clamped. A changed value raises the change, whoever changed it.
  void setValue(int value);

  // Takes the value that the form starts with, without an event.
  void setDesignValue(int value);

  void userSetValue(int value) { setValue(value); }

  std::function<void()> onChange;

 private:
  bool assign(int value);

  int min_ = 0;
  int max_ = 10;
  int smallChange_ = 1;
  int largeChange_ = 1;
  int value_ = 0;
};

// A horizontal slider with tick marks.
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

// A vertical scroll bar. Its top is its minimum: with the greater limit as minimum, up gives more.
class ScrollBar : public RangeControl {
 public:
  ScrollBar(Form& form, std::string name) : RangeControl(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::ScrollBar; }
};

}  // namespace forms
