// The colour gradient as the show draws it: from a colour at the top down to black.
#pragma once

#include "base/bitmap.h"

namespace dialog {

// The height is divided into 256 bands. Band i is the colour with i taken from each component, not below 0.
// Components outside 0 to 255 are clamped.
base::Bitmap DrawGradient(base::PixelSize size, int red, int green, int blue);

}  // namespace dialog
