#include "base/orientation.h"

#include <algorithm>
#include <utility>

namespace base {

namespace {

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

Bitmap TurnUpright(Bitmap stored, Orientation orientation) {
  Bitmap picture = SwapsSides(orientation) ? Transposed(stored) : std::move(stored);
  switch (orientation) {
    case Orientation::Upright:
    case Orientation::MirroredTurnedLeft:
      break;
    case Orientation::Mirrored:
    case Orientation::TurnedLeft:
      MirrorRows(picture);
      break;
    case Orientation::MirroredUpsideDown:
    case Orientation::TurnedRight:
      TurnOver(picture);
      break;
    case Orientation::UpsideDown:
    case Orientation::MirroredTurnedRight:
      MirrorRows(picture);
      TurnOver(picture);
      break;
  }
  return picture;
}

}  // namespace base
