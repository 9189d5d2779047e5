// Finds the first picture of a GIF file among its blocks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/geometry.h"

namespace pictures {

struct GifFrameBlock {
  base::PixelSize screen;  // as the header says, possibly empty
  base::PixelRect place;   // of the frame on the screen
  bool interlaced = false;
  std::string_view colors;  // of the frame, else of the file: red, green, blue
  std::optional<std::uint8_t> transparentIndex;
  std::size_t data = 0;  // offset of the code size byte before the pixels
};

// Nothing when the bytes are no GIF file, or end before the first frame's colours do.
std::optional<GifFrameBlock> FindFirstGifFrame(std::string_view file);

// The sub-block at an offset, with `offset` moved behind it. Nothing at the empty sub-block that ends a
// series, or at the end of the bytes; the last one is cut short there.
std::optional<std::string_view> NextGifSubBlock(std::string_view file, std::size_t& offset);

}  // namespace pictures
