// Measures and draws text with the machine's fonts, as a mask that any picture can be coloured through.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/font.h"
#include "base/geometry.h"

namespace os {

// How much of each pixel the text covers, 0 to 255, row by row without gaps.
struct TextMask {
  base::PixelSize size;
  std::vector<std::uint8_t> coverage;
};

class TextRenderer {
 public:
  virtual ~TextRenderer() = default;

  // Pixels that one line of UTF-8 text takes. The height is the font's line height, for empty text too.
  // A font that the machine does not have is replaced by one that it has.
  virtual base::PixelSize measure(const base::Font& font, const std::string& text) = 0;

  // The text drawn antialiased on one line into a mask of measure()'s size.
  virtual TextMask draw(const base::Font& font, const std::string& text) = 0;
};

}  // namespace os
