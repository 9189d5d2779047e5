// Pixels of the show that move by themselves.
#pragma once

#include "base/bitmap.h"

namespace saver {

class LivePicture {
 public:
  virtual ~LivePicture() = default;

  // Where it stands in the window; it hides what lies behind it there.
  virtual base::PixelRect place() const = 0;

  // Draws what it shows at this moment in `area` of the window, which lies inside its place and the target.
  // Called on several threads at the same time, for areas that have nothing in common.
  virtual void draw(const base::BitmapView& target, const base::PixelRect& area) const = 0;
};

}  // namespace saver
