// The advice against very long picture lists.
#pragma once

#include "forms/dialogs.h"

namespace auxwin {

constexpr int kAdvisedImages = 700;

// Given once in the life of the dialog, whichever way the list grew.
struct ManyImagesAdvice {
  bool manyImagesWarned = false;

  // Shows the advice when the list holds more than 700 pictures and it was not shown before.
  void consider(int count, forms::Dialogs& dialogs) {
    if (count <= kAdvisedImages || manyImagesWarned) return;
    dialogs.messageBox("It is recommended that the screen saver should have less than 700 loaded images.",
                       forms::kExclamation);
    manyImagesWarned = true;
  }
};

}  // namespace auxwin
