// Areas made of rectangles.
#pragma once

#include <cstddef>
#include <vector>

#include "base/geometry.h"

namespace base {

// The union of all rectangles that were added. Rectangles that make up a larger one together are kept as
// that one; others may overlap.
class Region {
 public:
  void add(PixelRect rect);
  void clear() { rects_.clear(); }

  const std::vector<PixelRect>& rects() const { return rects_; }
  bool isEmpty() const { return rects_.empty(); }

  // The rectangle of the largest area; empty when nothing was added.
  PixelRect largest() const;

 private:
  std::vector<PixelRect> rects_;
};

// The part of `whole` outside `hole` as rectangles that do not overlap: above, left, right, below. None is
// empty.
std::vector<PixelRect> Difference(const PixelRect& whole, const PixelRect& hole);

}  // namespace base
