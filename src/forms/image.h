// A picture shown as large as its box allows, in its own proportions.
#pragma once

#include <string>
#include <utility>

#include "base/geometry.h"
#include "forms/control.h"
#include "pictures/picture.h"

namespace forms {

// The largest size with the proportions of `picture` inside `box`, at least one pixel each way. A picture
// that fits is not enlarged.
base::PixelSize FitInside(base::PixelSize picture, base::PixelSize box);

class Image : public Control {
 public:
  Image(Form& form, std::string name) : Control(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::Image; }

  const pictures::SharedPicture& picture() const { return picture_; }
  void setPicture(pictures::SharedPicture picture) {
    if (picture_ == picture) return;
    picture_ = std::move(picture);
    changed(Change::Picture);
  }

 private:
  pictures::SharedPicture picture_;
};

}  // namespace forms
