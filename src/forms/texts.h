// Labels, lines to edit, the status bar.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/font.h"
#include "forms/control.h"

namespace forms {

enum class TextAlign { Left, Right, Center };

// A text that can size itself to its one line.
class Label : public Control {
 public:
  Label(Form& form, std::string name);
  ControlKind kind() const override { return ControlKind::Label; }

  const std::string& caption() const { return caption_; }
  // With autoSize a changed text measures width and height anew.
  void setCaption(std::string caption);

  // Set once while building a form.
  TextAlign align = TextAlign::Left;
  bool wraps = false;        // goes on in further lines at the end of its width
  bool hasMnemonic = false;  // "&" before a letter leads to the control behind the label

  const base::Font& font() const { return font_; }
  void setFont(base::Font font);

  bool autoSize() const { return autoSize_; }
  void setAutoSize(bool autoSize);

  // A transparent label shows what is behind it between its letters.
  bool transparent() const { return transparent_; }
  void setTransparent(bool transparent);

  // Takes the size of the present text, whether or not it changed.
  void sizeToText();

 private:
  std::string caption_;
  base::Font font_;
  bool autoSize_ = false;
  bool transparent_ = false;
};

// One line of text that the user may edit.
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
  std::function<void()> onEnter;  // the Enter key; without a handler it presses the form's default button

 private:
  bool assign(std::string text) {
    if (text_ == text) return false;
    text_ = std::move(text);
    changed(Change::Text);
    return true;
  }

  std::string text_;
};

// The first panel takes what the others leave; they are as wide as their texts, and gone without one.
struct StatusPanel {
  std::string text;
};

// A line of panels with texts at the bottom of a form.
class StatusBar : public Control {
 public:
  StatusBar(Form& form, std::string name, std::vector<StatusPanel> panels)
      : Control(form, std::move(name)), panels_(std::move(panels)) {}
  ControlKind kind() const override { return ControlKind::StatusBar; }

  const std::vector<StatusPanel>& panels() const { return panels_; }

  // Panels count from 1.
  const std::string& panelText(int panel) const {
    return panels_.at(static_cast<std::size_t>(panel - 1)).text;
  }
  void setPanelText(int panel, const std::string& text) {
    std::string& shown = panels_.at(static_cast<std::size_t>(panel - 1)).text;
    if (shown == text) return;
    shown = text;
    changed(Change::Text);
  }

 private:
  std::vector<StatusPanel> panels_;
};

}  // namespace forms
