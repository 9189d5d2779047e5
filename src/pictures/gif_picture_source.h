// The first frame of a GIF file as a picture source.
#pragma once

#include <utility>

#include "os/picture_decoder.h"
#include "pictures/gif_first_frame.h"

namespace pictures {

class GifPictureSource final : public os::PictureSource {
 public:
  explicit GifPictureSource(GifFirstFrame frame) : frame_(std::move(frame)) {}

  base::PixelSize size() const override { return frame_.size(); }
  bool hasAlpha() const override { return frame_.mayBeTransparent(); }
  std::vector<int> reductions() const override { return {1}; }
  base::PixelSize reducedSize(int) const override { return frame_.size(); }

  bool readRows(int, int top, int count, base::Pixel* pixels) override {
    for (int y = top; y < top + count; ++y, pixels += frame_.size().width) frame_.row(y, pixels);
    return true;
  }

 private:
  GifFirstFrame frame_;
};

}  // namespace pictures
