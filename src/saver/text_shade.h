// The soft shade behind a text that keeps it readable whatever picture lies behind it.
#pragma once

#include <cstdint>
#include <vector>

#include "base/bitmap.h"
#include "base/color.h"
#include "base/geometry.h"
#include "os/text_renderer.h"

namespace saver {

// What a shade is drawn with.
struct ShadeInk {
  base::PackedColor color = base::kBlack;  // black behind a light text, white behind a dark one
  std::uint8_t strength = 0;               // how much of 255 it hides of the picture next to the letters
};

// The weakest shade next to which a text of that colour has the contrast of a readable one, on the brightest
// picture and on the darkest.
ShadeInk ShadeFor(base::PackedColor text);

// Pixels by which a shade reaches beyond letters of a line of that height.
int ShadeReach(int lineHeight);

// How deep each pixel of a text and of what surrounds it lies in its shade: 255 next to the letters and on
// them, less and less from there on, 0 where the shade ends.
struct TextShade {
  base::PixelSize size;  // of the mask and the reach on every side of it
  int reach = 0;
  std::vector<std::uint8_t> depth;  // row by row without gaps
};

TextShade MakeShade(const os::TextMask& mask, int reach);

// Lays a shade whose top left corner is at `corner` over the pixels of `clip`. The target is opaque and stays
// so.
void BlendShade(const base::BitmapView& target, base::PixelPoint corner, const TextShade& shade,
                const ShadeInk& ink, const base::PixelRect& clip);

}  // namespace saver
