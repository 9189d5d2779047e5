// A vertical colour gradient, from a colour at the top down to black.
#pragma once

#include "base/bitmap.h"

namespace base {

constexpr int kGradientBands = 256;

struct GradientColor {
  int red = 0;  // 0 to 255 each; what lies outside is cut to it
  int green = 0;
  int blue = 0;
};

// The band that a row of a gradient `height` rows high shows: the one in which the row's upper edge lies. So
// the first row is band 0, every row has one, and from 256 rows on the last is band 255.
int GradientBandOfRow(int row, int height);

// 256 bands over the height, each component one less from band to band until it is 0. Opaque.
Bitmap DrawGradient(PixelSize size, const GradientColor& top);

}  // namespace base
