#include "saver/text_layer.h"

namespace saver {

namespace {

base::Pixel Mix(base::Pixel above, base::Pixel below, unsigned coverage) {
  base::Pixel result = 0xFF000000U;
  for (int shift = 0; shift < 24; shift += 8) {
    const unsigned a = above >> shift & 0xFF;
    const unsigned b = below >> shift & 0xFF;
    result |= (a * coverage + b * (255 - coverage) + 127) / 255 << shift;
  }
  return result;
}

}  // namespace

void BlendText(const base::BitmapView& target, base::PixelPoint origin, const os::TextMask& mask,
               base::PackedColor color, const base::PixelRect& clip) {
  const base::PixelRect place = base::PixelRect::ofSize(mask.size).movedBy(origin.x, origin.y);
  const base::PixelRect part = place.intersected(clip).intersected(base::PixelRect::ofSize(target.size));
  const base::Pixel ink = base::OpaquePixel(color);
  for (int y = part.top; y < part.bottom(); ++y) {
    const std::uint8_t* coverage =
        mask.coverage.data() + static_cast<std::ptrdiff_t>(y - origin.y) * mask.size.width - origin.x;
    base::Pixel* row = target.row(y);
    for (int x = part.left; x < part.right(); ++x) {
      if (coverage[x]) row[x] = Mix(ink, row[x], coverage[x]);
    }
  }
}

}  // namespace saver
