// What a picture leaves of its screen, filled with the picture itself: large, out of focus and dark.
#pragma once

#include <string_view>

#include "base/bitmap.h"

namespace saver {

// True for the text `blur`, without regard to case.
bool AsksForBlurredSurround(std::string_view text);

// The middle of the picture as it covers a screen, blurred and darkened. Neither is empty. As opaque as the
// picture.
base::Bitmap MakeSurround(const base::Bitmap& picture, base::PixelSize screen);

}  // namespace saver
