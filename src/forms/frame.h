// A captioned group box. Its text colour is its caption's.
#pragma once

#include <string>
#include <utility>

#include "forms/captioned_control.h"

namespace forms {

class Frame : public CaptionedControl {
 public:
  Frame(Form& form, std::string name) : CaptionedControl(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::Frame; }
};

}  // namespace forms
