// Draws a picture at another size.
#pragma once

#include "base/bitmap.h"

namespace base {

// The whole of `source` at `size`: each axis is shrunk by averaging over area or enlarged by smooth
// interpolation. Exact on alpha (colours are premultiplied). The result is opaque when the source is.
Bitmap Resample(const Bitmap& source, PixelSize size);

}  // namespace base
