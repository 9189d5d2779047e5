// One choice of a group of which exactly one is chosen.
#pragma once

#include <string>
#include <utility>

#include "forms/captioned_control.h"

namespace forms {

// The options on one container are one group.
class OptionButton : public CaptionedControl {
 public:
  OptionButton(Form& form, std::string name) : CaptionedControl(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::OptionButton; }

  bool value() const { return value_; }

  // Choosing takes the choice from the others of the group (without an event of theirs) and raises the click;
  // choosing what is chosen, and taking a choice away, raise nothing.
  void setValue(bool value);

  // Takes the state that the form starts with: as setValue, without an event.
  void setDesignValue(bool value);

  void userClicked() { setValue(true); }

 private:
  bool assign(bool value);

  bool value_ = false;
};

}  // namespace forms
