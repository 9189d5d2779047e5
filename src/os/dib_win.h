// A 32-bit picture that both the program and the graphics system draw on.
#pragma once

#include "base/bitmap.h"
#include "os/handles_win.h"

namespace os {

// A top-down DIB section selected into a memory device context. Filled with zeros (transparent black) when
// made; empty (null dc) when the system refuses one.
class Dib {
 public:
  Dib() = default;
  explicit Dib(base::PixelSize size);
  ~Dib();
  Dib(Dib&& other) noexcept;
  Dib& operator=(Dib&& other) noexcept;

  HDC dc() const { return dc_.get(); }

  // The pixels. The graphics system's queue is flushed first, so that its drawing is in them.
  base::BitmapView view() const;

 private:
  void close();

  base::PixelSize size_;
  base::Pixel* pixels_ = nullptr;
  OwnedMemoryDc dc_;
  OwnedBitmap bitmap_;
  HGDIOBJ before_ = nullptr;
};

}  // namespace os
