// Brings a painting down to few colours.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "pictures/canvas.h"

namespace pictures {

struct Indexed {
  base::PixelSize size;
  std::string colors;                 // red, green, blue of each colour in use
  std::vector<std::uint8_t> indices;  // row by row
};

// With the 256 colours (or fewer) that stand for the painting best: boxes of colours cut at their medians,
// then moved to the means of what is nearest to them. What a pixel misses of its colour is handed on to its
// neighbours that are still to come (Floyd and Steinberg), `diffusion` of it: 0 none, 1 all.
Indexed ReduceColors(const Canvas& canvas, float diffusion);

}  // namespace pictures
