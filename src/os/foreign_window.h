// A window of another program into which this one draws.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "base/bitmap.h"
#include "base/geometry.h"

namespace os {

class ForeignWindow {
 public:
  virtual ~ForeignWindow() = default;

  virtual bool exists(std::intptr_t window) = 0;

  // Copies the picture's colours to the top-left corner of the window's inside; window 0 is the whole screen.
  // Stays in the window until the window is drawn anew by its owner.
  virtual void draw(std::intptr_t window, const base::Bitmap& picture) = 0;

  // The colour (opaque) that the window shows at a place of its inside, or nothing where there is none to be
  // read: outside, hidden, covered.
  virtual std::optional<base::Pixel> pixelAt(std::intptr_t window, base::PixelPoint place) = 0;

  // True when a third program has put a window of its own inside.
  virtual bool holdsAnother(std::intptr_t window) = 0;

  // Puts a hidden window of this program inside, so that the owner can end the drawing in the customary way,
  // by closing what is inside. `closed` (must not throw) is called once, on that or when the window goes
  // away.
  virtual void follow(std::intptr_t window, std::function<void()> closed) = 0;
};

// Windows of this machine.
std::unique_ptr<ForeignWindow> MakeForeignWindow();

}  // namespace os
