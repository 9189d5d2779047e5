// A box that is checked (1) or unchecked (0).
#pragma once

#include <string>
#include <utility>

#include "forms/captioned_control.h"

namespace forms {

class CheckBox : public CaptionedControl {
 public:
  CheckBox(Form& form, std::string name) : CaptionedControl(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::CheckBox; }

  int value() const { return value_; }

  // A value beyond 0 and 1 is clamped. A changed value raises the click, whoever changed it.
  void setValue(int value);

  // Takes the value that the form starts with, without an event.
  void setDesignValue(int value);

  void userClicked() { setValue(value_ == 0 ? 1 : 0); }

 private:
  bool assign(int value);

  int value_ = 0;
};

}  // namespace forms
