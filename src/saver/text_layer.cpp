#include "saver/text_layer.h"

#include "base/color.h"

namespace saver {

namespace {

base::Pixel Mix(base::Pixel ink, base::Pixel below, const os::TextCoverage& coverage) {
  base::Pixel result = 0xFF000000U;
  for (int shift = 0; shift < 24; shift += 8) {
    const unsigned a = ink >> shift & 0xFF;
    const unsigned b = below >> shift & 0xFF;
    const unsigned part = a > b ? coverage.overDarker : coverage.overLighter;
    result |= (a * part + b * (255 - part) + 127) / 255 << shift;
  }
  return result;
}

}  // namespace

base::PixelRect TextLayer::labelChanged(forms::Change change) {
  if (change == forms::Change::Font) overhang_.reset();
  if (change == forms::Change::Text || change == forms::Change::Font) mask_.reset();
  const base::PixelRect place = inkPlace();
  const base::PixelRect stale = was_.united(place);
  was_ = place;
  return stale;
}

// The label and what its letters reach beyond it.
base::PixelRect TextLayer::inkPlace() {
  if (!label_.visible()) return {};
  const base::PixelRect place = label_.pixelRect();
  if (label_.caption().empty() || place.isEmpty()) return place;
  if (!overhang_) overhang_ = text_.overhang(label_.font());
  return {place.left - *overhang_, place.top, place.width + 2 * *overhang_, place.height};
}

void TextLayer::compose(const base::BitmapView& target, const base::PixelRect& area) {
  const base::PixelRect ink = inkPlace().intersected(area);
  if (ink.isEmpty()) return;
  if (!mask_) mask_ = text_.draw(label_.font(), label_.caption());
  const base::PixelRect place = label_.pixelRect();
  if (!label_.transparent()) {
    base::FillRect(target, place.intersected(area), base::OpaquePixel(base::PlainColor(label_.backColor())));
  }
  BlendText(target, {place.left - mask_->origin, place.top}, *mask_, base::PlainColor(label_.foreColor()),
            ink);
}

void BlendText(const base::BitmapView& target, base::PixelPoint corner, const os::TextMask& mask,
               base::PackedColor color, const base::PixelRect& clip) {
  const base::PixelRect place = base::PixelRect::ofSize(mask.size).movedBy(corner.x, corner.y);
  const base::PixelRect part = place.intersected(clip).intersected(base::PixelRect::ofSize(target.size));
  const base::Pixel ink = base::OpaquePixel(color);
  for (int y = part.top; y < part.bottom(); ++y) {
    const os::TextCoverage* coverage =
        mask.coverage.data() + static_cast<std::ptrdiff_t>(y - corner.y) * mask.size.width;
    base::Pixel* row = target.row(y);
    for (int x = part.left; x < part.right(); ++x) {
      const os::TextCoverage& here = coverage[x - corner.x];
      if (here.overDarker != 0 || here.overLighter != 0) row[x] = Mix(ink, row[x], here);
    }
  }
}

}  // namespace saver
