// A button that does something when it is pressed.
#pragma once

#include <string>
#include <utility>

#include "forms/captioned_control.h"

namespace forms {

// The picture on a button without a caption.
enum class ButtonGlyph { None, Up, Down };

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

}  // namespace forms
