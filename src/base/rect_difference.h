// What of one rectangle lies outside another.
#pragma once

#include <vector>

#include "base/geometry.h"

namespace base {

// The part of `whole` outside `hole` as rectangles that do not overlap: above, left, right, below. None is
// empty.
std::vector<PixelRect> Difference(const PixelRect& whole, const PixelRect& hole);

}  // namespace base
