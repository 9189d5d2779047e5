// The settings dialog's picture list, as the folder import sees it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "auxwin/many_images_advice.h"
#include "forms/lists.h"
#include "forms/texts.h"

namespace auxwin {

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
