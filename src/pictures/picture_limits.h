// How much one picture may ask for, whatever its file claims.
#pragma once

#include <cstdint>

#include "base/area_average.h"
#include "base/geometry.h"

namespace pictures {

// Bytes that a decoder may hold at once: the largest cameras' pictures fit.
constexpr std::int64_t kMostDecodingBytes = std::int64_t{1} << 30;

// Pixels to draw: while a picture is turned upright it stands in memory twice, 1 GiB at most together.
constexpr std::int64_t kMostDrawnPixels = std::int64_t{1} << 27;

inline std::int64_t PixelCount(base::PixelSize size) {
  return size.isEmpty() ? 0 : static_cast<std::int64_t>(size.width) * size.height;
}

// `bytesPerPixel`: what a decoder may hold of each pixel, at least 1.
inline bool IsDecodable(base::PixelSize stored, int bytesPerPixel) {
  return !stored.isEmpty() && PixelCount(stored) <= kMostDecodingBytes / bytesPerPixel &&
         stored.width <= base::AreaAverage::kLongestSide && stored.height <= base::AreaAverage::kLongestSide;
}

}  // namespace pictures
