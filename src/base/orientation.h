// The eight ways in which a camera can have been held, and turning its pictures upright.
#pragma once

#include "base/bitmap.h"

namespace base {

// Numbered as in the Exif standard (tag 0x0112): where the upright picture's top-left corner is to be found.
enum class Orientation {
  Upright = 1,
  Mirrored = 2,             // left and right exchanged
  UpsideDown = 3,           // turned by 180 degrees
  MirroredUpsideDown = 4,   // top and bottom exchanged
  MirroredTurnedLeft = 5,   // rows are columns: mirrored at the main diagonal
  TurnedLeft = 6,           // to be turned right by 90 degrees
  MirroredTurnedRight = 7,  // mirrored at the other diagonal
  TurnedRight = 8,          // to be turned left by 90 degrees
};

// True for the four in which width and height change places.
constexpr bool SwapsSides(Orientation orientation) { return orientation >= Orientation::MirroredTurnedLeft; }

// The size of the upright picture, from the stored one; and the other way round, for the two are the same.
constexpr PixelSize UprightSize(PixelSize stored, Orientation orientation) {
  return SwapsSides(orientation) ? PixelSize{stored.height, stored.width} : stored;
}

// Where the pixels of `part` of an upright picture of this size lie in the stored one.
PixelRect StoredPart(const PixelRect& part, PixelSize upright, Orientation orientation);

// The stored picture turned upright. Cheap after shrinking, so shrink first.
Bitmap TurnUpright(Bitmap stored, Orientation orientation);

}  // namespace base
