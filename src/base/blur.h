// Smooths a picture.
#pragma once

#include "base/bitmap.h"

namespace base {

// Averages every pixel with those up to `radius` (1 or more) away in both directions, three times over, which
// is close to a bell curve. Beyond a border the border pixel goes on. Equal pixels stay what they are.
void Blur(Bitmap& picture, int radius);

}  // namespace base
