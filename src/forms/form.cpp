#include "forms/form.h"

#include <utility>

namespace forms {

Form::Form(std::string name) : name_(std::move(name)) {}

void Form::setBackColor(base::PackedColor color) {
  if (backColor_ == color) return;
  backColor_ = color;
  if (onBackColorChanged) onBackColorChanged();
}

}  // namespace forms
