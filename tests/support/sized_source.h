// A decoded picture that has a size and no pixels.
#pragma once

#include <vector>

#include "os/picture_decoder.h"

namespace support {

class SizedSource final : public os::PictureSource {
 public:
  explicit SizedSource(base::PixelSize size) : size_(size) {}
  base::PixelSize size() const override { return size_; }
  bool hasAlpha() const override { return false; }
  std::vector<int> reductions() const override { return {1}; }
  base::PixelSize reducedSize(int) const override { return size_; }
  bool readRows(int, int, int, base::Pixel*) override { return false; }

 private:
  base::PixelSize size_;
};

}  // namespace support
