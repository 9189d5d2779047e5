// Writes small GIF files for tests, field by field, with codes that a reader of the standard can check by
// hand.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/geometry.h"

namespace support {

struct GifBuilder {
  base::PixelSize screen;
  base::PixelRect frame;
  std::string globalColors;  // red, green, blue for 2, 4, 8 .. 256 colours, or none
  std::string localColors;
  bool interlaced = false;  // `indices` are then taken in the order of the passes
  std::optional<std::uint8_t> transparentIndex;
  std::vector<std::uint8_t> indices;

  // Everything up to the code size byte.
  std::string beforeData() const;

  // The code size byte, the data in sub-blocks, the end of the series, the trailer.
  std::string data() const;

  std::string file() const { return beforeData() + data(); }
};

// Nine-bit codes packed as in a GIF file's data, in sub-blocks with their end, behind a code size byte of 8.
std::string GifCodes(const std::vector<int>& codes);

}  // namespace support
