// A picture that glides in its box.
#pragma once

#include <cstdint>
#include <utility>

#include "base/bitmap.h"
#include "base/framed.h"
#include "saver/glide.h"
#include "saver/live_picture.h"

namespace saver {

class GlidingPicture final : public LivePicture {
 public:
  // `pixels` is opaque and of the glide's drawn size; the box has its top left corner at `at` of the window.
  GlidingPicture(base::SharedBitmap pixels, const Glide& glide, base::PixelPoint at, std::int64_t startMs);

  // Goes on to where it is at a moment of the clock on which it started.
  void moveTo(std::int64_t nowMs);

  // It has stood still for so long.
  void startLater(std::int64_t ms) { startMs_ += ms; }
  bool hasArrived(std::int64_t nowMs) const { return nowMs - startMs_ >= glide_.durationMs(); }

  // What it shows now.
  base::SharedBitmap still() const;

  base::PixelRect place() const override;
  void draw(const base::BitmapView& target, const base::PixelRect& area) const override;

 private:
  base::FramedPicture framedAt(double elapsedMs) const;

  base::SharedBitmap pixels_;
  Glide glide_;
  base::PixelPoint at_;
  std::int64_t startMs_;
  base::FramedPicture framed_;
};

// The first frame of a glide, or the pixels themselves where it stands still.
base::SharedBitmap FirstFrame(const base::SharedBitmap& pixels, const Glide& glide);

}  // namespace saver
