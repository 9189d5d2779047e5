// Draws a picture source at a size.
#pragma once

#include <optional>

#include "base/bitmap.h"
#include "os/picture_decoder.h"

namespace pictures {

// The whole picture, not turned, at `target`: decoded by as large a reduction as leaves it no smaller, then
// averaged while its rows come in; the rows at full resolution are never held together. Nothing when a row
// cannot be decoded.
std::optional<base::Bitmap> DrawSource(os::PictureSource& source, base::PixelSize target);

}  // namespace pictures
