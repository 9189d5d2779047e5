// A picture in miniature.
#pragma once

#include "base/bitmap.h"
#include "pictures/picture.h"

namespace dialog {

// The whole picture in its proportions in the middle of a bitmap of `box` pixels that is transparent around
// it. It is shrunk as far as needed and never enlarged; it is decoded at the size at which it is shown. Null
// when it cannot be decoded.
base::SharedBitmap DrawThumbnail(const pictures::Picture& picture, base::PixelSize box);

}  // namespace dialog
