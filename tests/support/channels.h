// The levels of a pixel: blue, green, red and alpha (0 to 3), each 0 to 255.
#pragma once

#include <algorithm>
#include <cstdlib>

#include "base/bitmap.h"

namespace support {

constexpr int Channel(base::Pixel pixel, int number) {
  return static_cast<int>((pixel >> (8 * number)) & 0xFF);
}

// The largest difference of a level: lossy formats bring pictures back only nearly.
inline int ChannelDistance(base::Pixel a, base::Pixel b) {
  int largest = 0;
  for (int i = 0; i < 4; ++i) largest = std::max(largest, std::abs(Channel(a, i) - Channel(b, i)));
  return largest;
}

}  // namespace support
