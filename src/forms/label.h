// One line of text that sizes itself to its text.
#pragma once

#include <string>

#include "base/font.h"
#include "forms/control.h"

namespace forms {

enum class TextAlign { Left, Right, Center };

class Label : public Control {
 public:
  Label(Form& form, std::string name);
  ControlKind kind() const override { return ControlKind::Label; }

  const std::string& caption() const { return caption_; }
  // With autoSize a changed text measures width and height anew.
  void setCaption(std::string caption);

  // Set once while building a form.
  TextAlign align = TextAlign::Left;

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

}  // namespace forms
