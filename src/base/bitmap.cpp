#include "base/bitmap.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace base {

namespace {

std::size_t PixelCount(PixelSize size) {
  if (size.isEmpty()) return 0;
  return static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
}

// The part of `from` that lies inside the source and whose place at `to` lies inside the target.
PixelRect VisiblePart(PixelSize target, PixelPoint to, PixelSize source, PixelRect from) {
  const int dx = to.x - from.left;
  const int dy = to.y - from.top;
  return from.intersected(PixelRect::ofSize(source)).intersected(PixelRect::ofSize(target).movedBy(-dx, -dy));
}

// Two channels at once, each multiplied by alpha / 255 and rounded exactly.
Pixel TimesAlpha(Pixel twoChannels, Pixel alpha) {
  const Pixel product = twoChannels * alpha + 0x00800080U;
  return ((product + ((product >> 8) & 0x00FF00FFU)) >> 8) & 0x00FF00FFU;
}

}  // namespace

Bitmap::Bitmap(PixelSize size, Pixel fill) : Bitmap(unfilled(size)) {
  std::fill_n(pixels_.get(), PixelCount(size_), fill);
  opaque_ = fill >> 24 == 0xFF;
}

Bitmap::Bitmap(const Bitmap& other) : Bitmap(unfilled(other.size_)) {
  std::copy_n(other.pixels_.get(), PixelCount(size_), pixels_.get());
  opaque_ = other.opaque_;
}

Bitmap::Bitmap(Bitmap&& other) noexcept
    : size_(std::exchange(other.size_, {})),
      pixels_(std::move(other.pixels_)),
      opaque_(std::exchange(other.opaque_, false)) {}

Bitmap& Bitmap::operator=(const Bitmap& other) {
  if (size_ != other.size_) return *this = Bitmap(other);
  if (this != &other) std::copy_n(other.pixels_.get(), PixelCount(size_), pixels_.get());
  opaque_ = other.opaque_;
  return *this;
}

Bitmap& Bitmap::operator=(Bitmap&& other) noexcept {
  size_ = std::exchange(other.size_, {});
  pixels_ = std::move(other.pixels_);
  opaque_ = std::exchange(other.opaque_, false);
  return *this;
}

Bitmap Bitmap::unfilled(PixelSize size) {
  Bitmap bitmap;
  if (size.isEmpty()) return bitmap;
  bitmap.size_ = size;
  bitmap.pixels_ = std::make_unique_for_overwrite<Pixel[]>(PixelCount(size));
  return bitmap;
}

bool Bitmap::operator==(const Bitmap& other) const {
  return size_ == other.size_ &&
         std::equal(pixels_.get(), pixels_.get() + PixelCount(size_), other.pixels_.get());
}

void FillRect(BitmapView target, PixelRect area, Pixel pixel) {
  const PixelRect part = area.intersected(PixelRect::ofSize(target.size));
  for (int y = part.top; y < part.bottom(); ++y) {
    std::fill_n(target.row(y) + part.left, part.width, pixel);
  }
}

void CopyRect(BitmapView target, PixelPoint to, const Bitmap& source, PixelRect from) {
  const PixelRect part = VisiblePart(target.size, to, source.size(), from);
  const int x = part.left - from.left + to.x;
  for (int y = part.top; y < part.bottom(); ++y) {
    std::memcpy(target.row(y - from.top + to.y) + x, source.row(y) + part.left,
                static_cast<std::size_t>(part.width) * sizeof(Pixel));
  }
}

Bitmap Cropped(const Bitmap& picture, PixelRect part) {
  const bool isInside = part.intersected(PixelRect::ofSize(picture.size())) == part;
  Bitmap cropped = isInside ? Bitmap::unfilled(part.size()) : Bitmap(part.size());
  CopyRect(cropped.view(), {0, 0}, picture, part);
  cropped.setOpaque(isInside && picture.isOpaque());
  return cropped;
}

void CopyRects(BitmapView target, PixelPoint at, const Bitmap& source, std::span<const PixelRect> areas) {
  while (!areas.empty()) {
    const PixelRect& first = areas.front();
    const auto end = std::find_if(areas.begin(), areas.end(), [&](const PixelRect& area) {
      return area.top != first.top || area.height != first.height;
    });
    const std::span<const PixelRect> sameRows = areas.first(static_cast<std::size_t>(end - areas.begin()));
    for (int y = first.top; y < first.bottom(); ++y) {
      Pixel* to = target.row(y);
      const Pixel* from = source.row(y - at.y);
      for (const PixelRect& area : sameRows) {
        std::copy_n(from + (area.left - at.x), area.width, to + area.left);
      }
    }
    areas = areas.subspan(sameRows.size());
  }
}

void BlendRect(BitmapView target, PixelPoint to, const Bitmap& source, PixelRect from) {
  if (source.isOpaque()) {
    CopyRect(target, to, source, from);
    return;
  }
  const PixelRect part = VisiblePart(target.size, to, source.size(), from);
  const int x = part.left - from.left + to.x;
  for (int y = part.top; y < part.bottom(); ++y) {
    Pixel* below = target.row(y - from.top + to.y) + x;
    const Pixel* above = source.row(y) + part.left;
    for (int i = 0; i < part.width; ++i) below[i] = Over(above[i], below[i]);
  }
}

Pixel Over(Pixel above, Pixel below) {
  const Pixel alpha = above >> 24;
  if (alpha == 0xFF) return above;
  if (alpha == 0) return below;
  const Pixel rest = 255 - alpha;
  Pixel result = 0;
  for (int shift = 0; shift < 32; shift += 8) {
    const Pixel part = ((below >> shift) & 0xFF) * rest + 127;
    result |= std::min<Pixel>(((above >> shift) & 0xFF) + part / 255, 0xFF) << shift;
  }
  return result;
}

bool Premultiply(Pixel* pixels, std::size_t count) {
  Pixel everyAlpha = 0xFF000000U;
  for (std::size_t i = 0; i < count; ++i) {
    const Pixel pixel = pixels[i];
    const Pixel alpha = pixel >> 24;
    everyAlpha &= pixel;
    const Pixel redBlue = TimesAlpha(pixel & 0x00FF00FFU, alpha);
    const Pixel green = TimesAlpha((pixel >> 8) & 0xFFU, alpha);
    pixels[i] = (pixel & 0xFF000000U) | green << 8 | redBlue;
  }
  return everyAlpha == 0xFF000000U;
}

void MakeOpaque(Pixel* pixels, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) pixels[i] |= 0xFF000000U;
}

}  // namespace base
