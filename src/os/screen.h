// The screens of the machine.
#pragma once

#include <vector>

#include "base/bitmap.h"
#include "base/geometry.h"

namespace os {

class Screen {
 public:
  virtual ~Screen() = default;

  // The primary screen in physical pixels; its top-left corner is (0, 0).
  virtual base::PixelSize primarySize() const = 0;

  // Dots per inch of the primary screen.
  virtual int dpi() const = 0;

  // The places of the further screens relative to the primary one; empty with a single screen.
  virtual std::vector<base::PixelRect> otherScreens() const = 0;

  // False where the user wants nothing to move that need not.
  virtual bool showsAnimations() const = 0;

  // What the screens show at this moment in an area, which is measured from the primary one's top left
  // corner. Opaque; black where there is no screen, or it cannot be read.
  virtual base::Bitmap copyDesktop(const base::PixelRect& area) const = 0;
};

}  // namespace os
