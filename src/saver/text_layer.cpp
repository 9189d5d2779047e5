#include "saver/text_layer.h"

#include "base/color.h"
#include "base/contrast.h"

namespace saver {

namespace {

constexpr double kDimmedLight = 0.25;

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
  if (change == forms::Change::Text || change == forms::Change::Font) {
    mask_.reset();
    shade_.reset();
  }
  return areaChanged();
}

base::PixelRect TextLayer::shade(const ShadeInk& ink) {
  shadeInk_ = ink;
  return areaChanged();
}

base::PixelRect TextLayer::shift(base::PixelPoint by) {
  shift_ = by;
  return areaChanged();
}

base::PixelRect TextLayer::dim(bool dimmed) {
  dimmed_ = dimmed;
  return areaChanged();
}

base::PixelRect TextLayer::areaChanged() {
  const base::PixelRect place = inkPlace();
  const base::PixelRect stale = was_.united(place);
  was_ = place;
  return stale;
}

// Beyond the letters; 0 where there is no shade.
int TextLayer::shadeReach() const {
  return shadeInk_ && label_.transparent() ? ShadeReach(label_.pixelRect().height) : 0;
}

// The label and what its letters and their shade reach beyond it.
base::PixelRect TextLayer::inkPlace() {
  if (!label_.visible()) return {};
  const base::PixelRect place = this->place();
  if (label_.caption().empty() || place.isEmpty()) return place;
  if (!overhang_) overhang_ = text_.overhang(label_.font());
  const int above = shadeReach();
  const int beside = *overhang_ + above;
  return {place.left - beside, place.top - above, place.width + 2 * beside, place.height + 2 * above};
}

void TextLayer::compose(const base::BitmapView& target, const base::PixelRect& area) {
  const base::PixelRect ink = inkPlace().intersected(area);
  if (ink.isEmpty()) return;
  if (!mask_) mask_ = text_.draw(label_.font(), label_.caption());
  const base::PixelRect place = this->place();
  const base::PixelPoint corner{place.left - mask_->origin, place.top};
  if (!label_.transparent()) {
    base::FillRect(target, place.intersected(area), base::OpaquePixel(base::PlainColor(label_.backColor())));
  }
  if (const int reach = shadeReach(); reach > 0 && !mask_->size.isEmpty()) {
    if (!shade_ || shade_->reach != reach) shade_ = MakeShade(*mask_, reach);
    BlendShade(target, {corner.x - reach, corner.y - reach}, *shade_, *shadeInk_, ink);
  }
  const base::PackedColor color = base::PlainColor(label_.foreColor());
  BlendText(target, corner, *mask_, dimmed_ ? base::WithShareOfLight(color, kDimmedLight) : color, ink);
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
