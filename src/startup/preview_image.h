// The picture that the display settings show for the program.
#pragma once

#include "base/bitmap.h"

namespace startup {

// 160 x 120 pixels, opaque.
base::Bitmap PreviewImage();

}  // namespace startup
