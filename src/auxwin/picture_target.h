// The settings dialog's picture list, as the folder import sees it, with the advice against a very long one.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "forms/dialogs.h"
#include "forms/lists.h"
#include "forms/texts.h"

namespace auxwin {

constexpr int kAdvisedImages = 700;

// The files of a folder that are taken for pictures.
inline constexpr char kImportedPatterns[] = "*.bmp;*.gif;*.dib;*.jpeg;*.jpg";

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

// Entry i of `captions` is the caption of entry i of `paths`; whoever adds to one adds to both.
struct PictureTarget {
  forms::ListBox& paths;
  forms::ListBox& captions;
  forms::TextBox& total;
  ManyImagesAdvice& advice;

  // The path as it can be kept (perhaps in another form), or nothing when it is too long.
  std::function<std::optional<std::string>(const std::string& path)> storable;

  // Tells the user, in one message, how many pictures an action left out. Says nothing of 0.
  std::function<void(int count)> tellLeftOut;
};

}  // namespace auxwin
