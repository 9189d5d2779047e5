// Numbers without a pattern, the same ones in every run, and pictures of them.
#pragma once

#include <cstdint>

#include "base/bitmap.h"

namespace support {

class Noise {
 public:
  explicit Noise(std::uint64_t seed = 88172645463325252U) : state_(seed) {}

  std::uint32_t next() {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::uint32_t>(state_ >> 33);
  }

  // From 0 to `most`.
  int upTo(int most) { return static_cast<int>(next() % (static_cast<std::uint32_t>(most) + 1)); }

 private:
  std::uint64_t state_;
};

// Every pixel opaque and of any colour.
inline base::Bitmap OpaqueNoise(base::PixelSize size, std::uint64_t seed = 1) {
  Noise noise(seed);
  base::Bitmap picture(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) picture.row(y)[x] = 0xFF000000U | (noise.next() & 0xFFFFFFU);
  }
  picture.setOpaque(true);
  return picture;
}

}  // namespace support
