// A control with a caption; "&" before a letter makes it the control's mnemonic.
#pragma once

#include <string>
#include <utility>

#include "forms/control.h"

namespace forms {

class CaptionedControl : public Control {
 public:
  CaptionedControl(Form& form, std::string name) : Control(form, std::move(name)) {}

  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    changed(Change::Text);
  }

 private:
  std::string caption_;
};

}  // namespace forms
