// How much one picture may ask for, whatever its file claims.
#pragma once

#include <cstdint>

#include "base/area_average.h"
#include "base/geometry.h"

namespace os {

// Pixels of a file: the largest cameras' pictures fit, and as 32-bit pixels they take 1 GiB at most.
constexpr std::int64_t kMostStoredPixels = std::int64_t{1} << 28;

// Pixels to draw: while a picture is turned upright it stands in memory twice, 1 GiB at most together.
constexpr std::int64_t kMostDrawnPixels = std::int64_t{1} << 27;

inline std::int64_t PixelCount(base::PixelSize size) {
  return size.isEmpty() ? 0 : static_cast<std::int64_t>(size.width) * size.height;
}

inline bool IsDecodable(base::PixelSize stored) {
  return !stored.isEmpty() && PixelCount(stored) <= kMostStoredPixels &&
         stored.width <= base::AreaAverage::kLongestSide && stored.height <= base::AreaAverage::kLongestSide;
}

}  // namespace os
