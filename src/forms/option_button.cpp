#include "forms/option_button.h"

#include "forms/form.h"

namespace forms {

bool OptionButton::assign(bool value) {
  if (value_ == value) return false;
  value_ = value;
  changed(Change::Value);
  if (!value_) return true;
  for (Control* other : form().controls()) {
    if (other == this || other->kind() != ControlKind::OptionButton || other->container() != container()) {
      continue;
    }
    static_cast<OptionButton*>(other)->assign(false);
  }
  return true;
}

void OptionButton::setValue(bool value) {
  if (assign(value) && value && onClick) onClick();
}

void OptionButton::setDesignValue(bool value) { assign(value); }

}  // namespace forms
