#include "base/twips.h"

#include <algorithm>

#include "base/rounding.h"

namespace base {

int TwipsPerPixelForDpi(int dpi) {
  if (dpi <= 0) return 15;
  return std::max(1, static_cast<int>(RoundHalfToEven(1440.0 / dpi)));
}

int TwipsToPixels(double twips, int twipsPerPixel) {
  return static_cast<int>(RoundHalfToEven(twips / twipsPerPixel));
}

int PixelAtTwips(double twips, int twipsPerPixel) {
  return static_cast<int>(Int(RoundHalfToEven(twips) / twipsPerPixel));
}

}  // namespace base
