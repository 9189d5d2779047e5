#include "base/orientation.h"

#include <algorithm>
#include <utility>

namespace base {

namespace {

// A stored picture becomes upright by letting rows be columns where its sides are swapped, and then these
// two.
constexpr bool MirrorsRows(Orientation orientation) {
  return orientation == Orientation::Mirrored || orientation == Orientation::TurnedLeft ||
         orientation == Orientation::UpsideDown || orientation == Orientation::MirroredTurnedRight;
}

constexpr bool TurnsOver(Orientation orientation) {
  return orientation == Orientation::MirroredUpsideDown || orientation == Orientation::TurnedRight ||
         orientation == Orientation::UpsideDown || orientation == Orientation::MirroredTurnedRight;
}

void MirrorRows(Bitmap& picture) {
  for (int y = 0; y < picture.size().height; ++y)
    std::reverse(picture.row(y), picture.row(y) + picture.size().width);
}

void TurnOver(Bitmap& picture) {
  const PixelSize size = picture.size();
  for (int y = 0; y < size.height / 2; ++y) {
    std::swap_ranges(picture.row(y), picture.row(y) + size.width, picture.row(size.height - 1 - y));
  }
}

// Rows become columns. In tiles, so that neither side runs through memory in long strides.
Bitmap Transposed(const Bitmap& picture) {
  constexpr int kTile = 32;
  const PixelSize from = picture.size();
  Bitmap result(PixelSize{from.height, from.width});
  result.setOpaque(picture.isOpaque());
  for (int top = 0; top < from.height; top += kTile) {
    for (int left = 0; left < from.width; left += kTile) {
      const int right = std::min(left + kTile, from.width);
      const int bottom = std::min(top + kTile, from.height);
      for (int x = left; x < right; ++x) {
        Pixel* out = result.row(x);
        for (int y = top; y < bottom; ++y) out[y] = picture.row(y)[x];
      }
    }
  }
  return result;
}

}  // namespace

PixelRect StoredPart(const PixelRect& part, PixelSize upright, Orientation orientation) {
  PixelRect stored = part;
  if (MirrorsRows(orientation)) stored.left = upright.width - part.right();
  if (TurnsOver(orientation)) stored.top = upright.height - part.bottom();
  if (!SwapsSides(orientation)) return stored;
  return {stored.top, stored.left, stored.height, stored.width};
}

Bitmap TurnUpright(Bitmap stored, Orientation orientation) {
  Bitmap picture = SwapsSides(orientation) ? Transposed(stored) : std::move(stored);
  if (MirrorsRows(orientation)) MirrorRows(picture);
  if (TurnsOver(orientation)) TurnOver(picture);
  return picture;
}

}  // namespace base
