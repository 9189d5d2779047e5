// Text of solid blocks: every character of 10 points is 6 pixels wide and 12 high, with a gap of one column.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "os/text_renderer.h"

namespace support {

class FakeTextRenderer : public os::TextRenderer {
 public:
  base::PixelSize measure(const base::Font& font, const std::string& text) override {
    return {static_cast<int>(text.size()) * widthOf(font),
            static_cast<int>(std::lround(font.sizePoints * 1.2F))};
  }

  int overhang(const base::Font&) override { return reach; }

  os::TextMask draw(const base::Font& font, const std::string& text) override {
    const base::PixelSize size = measure(font, text);
    os::TextMask mask{{size.width + 2 * reach, size.height}, reach, {}};
    const int cell = widthOf(font);
    std::vector<os::TextCoverage> row;
    for (int x = -reach; x < size.width + reach; ++x) {
      const bool beyond = x < 0 || x >= size.width;
      const bool inked = beyond || (x % cell != cell - 1 && text[static_cast<std::size_t>(x / cell)] != ' ');
      const auto part = static_cast<std::uint8_t>(inked ? 255 : 0);
      row.push_back({part, part});
    }
    for (int y = 0; y < mask.size.height; ++y) {
      mask.coverage.insert(mask.coverage.end(), row.begin(), row.end());
    }
    ++drawn;
    return mask;
  }

  int reach = 0;  // pixels that are inked beyond either end of every text

  int drawn = 0;  // how often text was drawn

 private:
  static int widthOf(const base::Font& font) { return std::max(2, static_cast<int>(font.sizePoints * 0.6F)); }
};

}  // namespace support
