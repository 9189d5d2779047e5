// Text of solid blocks: every character of 10 points is 6 pixels wide and 12 high, with a gap of one column.
#pragma once

#include <cmath>

#include "os/text_renderer.h"

namespace support {

class FakeTextRenderer : public os::TextRenderer {
 public:
  base::PixelSize measure(const base::Font& font, const std::string& text) override {
    return {static_cast<int>(text.size()) * widthOf(font),
            static_cast<int>(std::lround(font.sizePoints * 1.2F))};
  }

  os::TextMask draw(const base::Font& font, const std::string& text) override {
    os::TextMask mask{measure(font, text), {}};
    const int cell = widthOf(font);
    for (int y = 0; y < mask.size.height; ++y) {
      for (int x = 0; x < mask.size.width; ++x) {
        const bool inked = x % cell != cell - 1 && text[static_cast<std::size_t>(x / cell)] != ' ';
        mask.coverage.push_back(inked ? 255 : 0);
      }
    }
    ++drawn;
    return mask;
  }

  int drawn = 0;  // how often text was drawn

 private:
  static int widthOf(const base::Font& font) { return std::max(2, static_cast<int>(font.sizePoints * 0.6F)); }
};

}  // namespace support
