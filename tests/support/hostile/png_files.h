// PNG files with wrong sums, colours and sizes.
#pragma once

#include <cstdint>

#include "support/hostile/hostile_picture.h"

namespace support {

// The header's numbers, and the rows as they go into the (stored, not compressed) data.
struct PngFile {
  std::uint32_t width = 4;
  std::uint32_t height = 3;
  int depth = 8;
  int colorType = 2;  // 0 grey, 2 colours, 3 indices, 4 grey and alpha, 6 colours and alpha
  bool interlaced = false;
  std::string palette;
  std::string rows;

  std::string bytes() const;
};

// A small file that every reader draws: a red row above two blue ones.
PngFile PlainPng();

HostilePictures HostilePngs();

}  // namespace support
