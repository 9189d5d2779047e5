#include "forms/check_box.h"

#include <algorithm>

namespace forms {

bool CheckBox::assign(int value) {
  value = std::clamp(value, 0, 1);
  if (value_ == value) return false;
  value_ = value;
  changed(Change::Value);
  return true;
}

void CheckBox::setValue(int value) {
  if (assign(value) && onClick) onClick();
}

void CheckBox::setDesignValue(int value) { assign(value); }

}  // namespace forms
