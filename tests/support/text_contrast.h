// How well a drawn text can be told from what lies around it.
#pragma once

#include <algorithm>
#include <limits>
#include <vector>

#include "base/bitmap.h"
#include "base/contrast.h"
#include "os/text_renderer.h"
#include "support/noise.h"

namespace support {

// The least contrast (from 1 to 21) of a pixel that is a letter's alone against those within two pixels of it
// that have nothing of a letter. Infinite where there is no such pair.
inline double LeastTextContrast(const base::Bitmap& drawn, const os::TextMask& mask,
                                base::PixelPoint corner) {
  constexpr int kNear = 2;
  const auto coverage = [&mask](int x, int y) {
    const base::PixelRect inside = base::PixelRect::ofSize(mask.size);
    return inside.contains({x, y}) ? mask.coverage[static_cast<std::size_t>(y * mask.size.width + x)]
                                   : os::TextCoverage();
  };
  const auto colorAt = [&](int x, int y) {
    const base::Pixel pixel = drawn.at(corner.x + x, corner.y + y);
    return base::Rgb(static_cast<int>(pixel >> 16 & 0xFF), static_cast<int>(pixel >> 8 & 0xFF),
                     static_cast<int>(pixel & 0xFF));
  };
  double least = std::numeric_limits<double>::infinity();
  for (int y = 0; y < mask.size.height; ++y) {
    for (int x = 0; x < mask.size.width; ++x) {
      const os::TextCoverage here = coverage(x, y);
      if (here.overDarker != 255 || here.overLighter != 255) continue;
      for (int j = y - kNear; j <= y + kNear; ++j) {
        for (int i = x - kNear; i <= x + kNear; ++i) {
          const os::TextCoverage other = coverage(i, j);
          if (other.overDarker != 0 || other.overLighter != 0) continue;
          least = std::min(least, base::ContrastRatio(colorAt(x, y), colorAt(i, j)));
        }
      }
    }
  }
  return least;
}

// Pictures on which words are hard to read.
inline std::vector<base::Bitmap> HardPictures(base::PixelSize size) {
  const auto made = [size](const auto& pixelAt) {
    base::Bitmap picture(size);
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) picture.row(y)[x] = 0xFF000000U | pixelAt(x, y);
    }
    picture.setOpaque(true);
    return picture;
  };
  const auto checked = [&made](int field) {
    return made([field](int x, int y) { return (x / field + y / field) % 2 == 0 ? 0xFFFFFFU : 0U; });
  };
  return {base::Bitmap(size, 0xFFFFFFFFU),
          base::Bitmap(size, 0xFF000000U),
          base::Bitmap(size, 0xFF808080U),
          checked(1),
          checked(3),
          checked(16),
          OpaqueNoise(size)};
}

}  // namespace support
