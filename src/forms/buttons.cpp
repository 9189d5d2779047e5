#include "forms/buttons.h"

#include <algorithm>

#include "forms/form.h"

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

// The others give up the choice before anybody is told, so that whoever is told sees one choice.
bool OptionButton::assign(bool value) {
  if (value_ == value) return false;
  value_ = value;
  if (value_) {
    for (Control* other : form().controls()) {
      if (other == this || other->kind() != ControlKind::OptionButton || other->container() != container()) {
        continue;
      }
      static_cast<OptionButton*>(other)->assign(false);
    }
  }
  changed(Change::Value);
  return true;
}

void OptionButton::setValue(bool value) {
  if (assign(value) && value && onClick) onClick();
}

void OptionButton::userClicked() {
  assign(true);
  if (onClick) onClick();
}

void OptionButton::setDesignValue(bool value) { assign(value); }

}  // namespace forms
