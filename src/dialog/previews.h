// The small pictures that the dialog draws itself.
#pragma once

#include "base/bitmap.h"
#include "forms/picture.h"

namespace dialog {

// The whole picture in its proportions in the middle of a bitmap of `box` pixels that is transparent around
// it. It is shrunk as far as needed and never enlarged; it is decoded at the size at which it is shown. Null
// when it cannot be decoded.
base::SharedBitmap DrawThumbnail(const forms::Picture& picture, base::PixelSize box);

// The colour gradient as the show draws it: from a colour at the top down to black. The height is divided
// into 256 bands. Band i is the colour with i taken from each component, not below 0. Components outside 0 to
// 255 are clamped.
base::Bitmap DrawGradient(base::PixelSize size, int red, int green, int blue);

}  // namespace dialog
