// Push buttons, check boxes and options.
#pragma once

#include <string>
#include <utility>

#include "forms/control.h"

namespace forms {

// The picture on a button without a caption.
enum class ButtonGlyph { None, Up, Down };

// A button that does something when it is pressed.
class CommandButton : public CaptionedControl {
 public:
  CommandButton(Form& form, std::string name) : CaptionedControl(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::CommandButton; }

  // Presses by Enter and by Escape. Set once while building a form.
  bool isDefault = false;
  bool isCancel = false;
  ButtonGlyph glyph = ButtonGlyph::None;

  // Raises the click, as pressing the button does.
  void userClicked() {
    if (takesInput() && onClick) onClick();
  }
};

// A box that is checked (1) or unchecked (0).
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

// One choice of a group of which exactly one is chosen: the options on one container are one group.
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

  // The user's click raises the click also where the option is chosen already.
  void userClicked();

 private:
  bool assign(bool value);

  bool value_ = false;
};

}  // namespace forms
