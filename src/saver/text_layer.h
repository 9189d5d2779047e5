// Lays a text mask over a picture in one colour.
#pragma once

#include "base/bitmap.h"
#include "base/color.h"
#include "os/text_renderer.h"

namespace saver {

// Blends `color` through the mask, whose top-left corner is at `origin`, over the pixels of `clip`. The
// target is opaque and stays so.
void BlendText(const base::BitmapView& target, base::PixelPoint origin, const os::TextMask& mask,
               base::PackedColor color, const base::PixelRect& clip);

}  // namespace saver
