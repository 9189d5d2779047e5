#include "saver/gliding_picture.h"

#include <memory>

namespace saver {

GlidingPicture::GlidingPicture(base::SharedBitmap pixels, const Glide& glide, base::PixelPoint at,
                               std::int64_t startMs)
    : pixels_(std::move(pixels)), glide_(glide), at_(at), startMs_(startMs), framed_(framedAt(0)) {}

base::FramedPicture GlidingPicture::framedAt(double elapsedMs) const {
  return {glide_.drawnSize(), glide_.frameAt(elapsedMs), glide_.shownSize()};
}

void GlidingPicture::moveTo(std::int64_t nowMs) { framed_ = framedAt(static_cast<double>(nowMs - startMs_)); }

base::SharedBitmap GlidingPicture::still() const {
  auto frame = std::make_shared<base::Bitmap>(base::Bitmap::unfilled(glide_.shownSize()));
  framed_.draw(frame->view(), {0, 0}, *pixels_, base::PixelRect::ofSize(frame->size()));
  frame->setOpaque(true);
  return frame;
}

base::PixelRect GlidingPicture::place() const {
  return base::PixelRect::ofSize(glide_.shownSize()).movedBy(at_.x, at_.y);
}

void GlidingPicture::draw(const base::BitmapView& target, const base::PixelRect& area) const {
  framed_.draw(target, at_, *pixels_, area);
}

base::SharedBitmap FirstFrame(const base::SharedBitmap& pixels, const Glide& glide) {
  if (glide.standsStill()) return pixels;
  return GlidingPicture(pixels, glide, {0, 0}, 0).still();
}

}  // namespace saver
