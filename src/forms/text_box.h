// One line of text that the user may edit.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "forms/control.h"

namespace forms {

class TextBox : public Control {
 public:
  TextBox(Form& form, std::string name) : Control(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::TextBox; }

  const std::string& text() const { return text_; }

  // Changed text raises the change, whoever changed it.
  void setText(std::string text) {
    if (assign(std::move(text)) && onChange) onChange();
  }

  // Takes the text that the form starts with, without an event.
  void setDesignText(std::string text) { assign(std::move(text)); }

  void userTyped(std::string text) { setText(std::move(text)); }

  // Set once while building a form.
  bool locked = false;      // shows its text, takes none
  bool digitsOnly = false;  // nothing else can be typed
  int maxLength = 0;        // characters that can be typed; 0 = no limit

  std::function<void()> onChange;

 private:
  bool assign(std::string text) {
    if (text_ == text) return false;
    text_ = std::move(text);
    changed(Change::Text);
    return true;
  }

  std::string text_;
};

}  // namespace forms
