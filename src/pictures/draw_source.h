// Draws a picture source at a size, or a part of it.
#pragma once

#include <optional>

#include "base/bitmap.h"
#include "os/picture_decoder.h"

namespace pictures {

// The whole picture, not turned, at `target`: decoded by as large a reduction as leaves it no smaller, then
// averaged while its rows come in; the rows at full resolution are never held together. Nothing when a row
// cannot be decoded.
std::optional<base::Bitmap> DrawSource(os::PictureSource& source, base::PixelSize target);

// The pixels in `part` of the picture at its own size, not turned. Rows above and below are not asked for.
// Nothing when a row cannot be decoded.
std::optional<base::Bitmap> CutSource(os::PictureSource& source, const base::PixelRect& part);

}  // namespace pictures
