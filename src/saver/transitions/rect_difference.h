// What of one rectangle lies outside another.
#pragma once

#include <vector>

#include "base/geometry.h"

namespace saver {

// The part of `whole` outside `hole` as rectangles that do not overlap: above, left, right, below. None is
// empty.
std::vector<base::PixelRect> Difference(const base::PixelRect& whole, const base::PixelRect& hole);

}  // namespace saver
