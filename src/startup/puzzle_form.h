// The form that holds the preview's picture. It is never shown.
#pragma once

#include "base/bitmap.h"
#include "forms/form.h"
#include "forms/picture_boxes.h"

namespace startup {

class PuzzleForm : public forms::Form {
 public:
  // `image` is what Picture1 holds from the start, at its own size.
  explicit PuzzleForm(const base::Bitmap& image);

  forms::PictureBox Picture1;
};

}  // namespace startup
