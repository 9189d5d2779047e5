// Windows bitmap files of every depth and compression, legal and not.
#pragma once

#include <cstdint>
#include <string>

#include "support/hostile/hostile_picture.h"

namespace support {

// The numbers of the two headers, so that each can be wrong.
struct BitmapFile {
  std::int32_t width = 5;
  std::int32_t height = 3;  // below 0: top row first
  std::uint32_t bits = 24;
  std::uint32_t compression = 0;
  std::uint32_t infoSize = 40;
  std::uint32_t colorsUsed = 0;
  std::optional<std::uint32_t> pixelOffset = std::nullopt;  // where they stand, when nothing is said
  std::string colors;                                       // or masks
  std::string pixels;

  std::string bytes() const;
};

// A red row above two blue ones in one of the forms: 5 x 3 pixels.
BitmapFile RedOverBlue(std::uint32_t bits, std::uint32_t compression, bool topDown);

HostilePictures HostileBitmaps();

}  // namespace support
