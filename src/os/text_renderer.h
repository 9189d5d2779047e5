// Measures and draws text with the machine's fonts, as a mask that any picture can be coloured through.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/font.h"
#include "base/geometry.h"

namespace os {

// How much of a pixel a text covers, 0 to 255. The system draws light letters on a dark ground with more
// coverage than dark letters on a light one: to the eye they then have the same weight.
struct TextCoverage {
  std::uint8_t overDarker = 0;   // for a component of the text's colour above that of the ground
  std::uint8_t overLighter = 0;  // for one below
};

struct TextMask {
  base::PixelSize size;
  int origin = 0;                      // the column at which the measured text begins
  std::vector<TextCoverage> coverage;  // row by row without gaps
};

// What of a text would make its mask larger is not drawn.
constexpr std::size_t kMostMaskBytes = std::size_t{64} << 20;

class TextRenderer {
 public:
  virtual ~TextRenderer() = default;

  // Pixels that one line of UTF-8 text takes. The height is the font's line height, for empty text too.
  // A font that the machine does not have is replaced by one that it has.
  virtual base::PixelSize measure(const base::Font& font, const std::string& text) = 0;

  // Pixels by which letters of the font may reach beyond either end of a text's measured width, as a slanted
  // j does.
  virtual int overhang(const base::Font& font) = 0;

  // The text drawn antialiased on one line into a mask of measure()'s size and the overhang on both sides.
  virtual TextMask draw(const base::Font& font, const std::string& text) = 0;
};

}  // namespace os
