// What the first bytes of a picture file claim, and how much it may claim.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/area_average.h"
#include "base/geometry.h"

namespace pictures {

enum class PictureKind { Bitmap, Gif, Jpeg, Png };

struct PictureHeader {
  PictureKind kind = PictureKind::Bitmap;

  // As stored, not turned upright. Nothing when it stands further on in the file than the given bytes reach,
  // or is no size at all.
  std::optional<base::PixelSize> size;

  // The most that a decoder may hold of each pixel at once: a whole picture as four bytes a pixel, and more
  // where the format has deeper pixels or is decoded as a whole before the first row comes.
  int bytesPerPixel = 4;
};

// Decided by what the file holds, whatever its name says. Nothing when it is no picture of a known kind.
std::optional<PictureHeader> ReadPictureHeader(std::string_view head);

// For each pixel of a kind that only the machine's decoder knows: four channels of 16 bits.
constexpr int kUnknownBytesPerPixel = 8;

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
