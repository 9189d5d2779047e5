// How far two pixels are apart, for pictures that lossy formats bring back only nearly.
#pragma once

#include <algorithm>

#include "base/bitmap.h"

namespace support {

// The largest difference of a channel, transparency among them (0 to 255).
constexpr int ChannelDistance(base::Pixel a, base::Pixel b) {
  int largest = 0;
  for (int shift = 0; shift < 32; shift += 8) {
    const int one = static_cast<int>(a >> shift & 0xFF);
    const int other = static_cast<int>(b >> shift & 0xFF);
    largest = std::max(largest, one > other ? one - other : other - one);
  }
  return largest;
}

}  // namespace support
