#include "forms/ranges.h"

#include <algorithm>

namespace forms {

void RangeControl::setRange(int min, int max, int smallChange, int largeChange) {
  min_ = min;
  max_ = max;
  smallChange_ = std::max(1, smallChange);
  largeChange_ = std::max(1, largeChange);
  changed(Change::Range);
  assign(value_);
}

bool RangeControl::assign(int value) {
  value = std::clamp(value, lowest(), highest());
  if (value_ == value) return false;
  value_ = value;
  changed(Change::Value);
  return true;
}

void RangeControl::setValue(int value) {
  if (assign(value) && onChange) onChange();
}

void RangeControl::setDesignValue(int value) { assign(value); }

}  // namespace forms
