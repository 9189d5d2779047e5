#include "support/look_show.h"

#include <algorithm>
#include <cstdlib>

#include "support/channels.h"

namespace support {

std::vector<base::Bitmap> ScreensWhile(ShowStage& show, int ms) {
  std::vector<base::Bitmap> screens;
  for (int at = kFrameMs; at <= ms; at += kFrameMs) {
    show.loop.postAfter(at, [&] { screens.push_back(show.window.screen); });
  }
  show.runFor(ms + kFrameMs);
  return screens;
}

int Difference(const base::Bitmap& a, const base::Bitmap& b) {
  int largest = 0;
  for (int y = 0; y < a.size().height; ++y) {
    const base::Pixel* const ofA = a.row(y);
    const base::Pixel* const ofB = b.row(y);
    for (int x = 0; x < a.size().width; ++x) {
      if (ofA[x] == ofB[x]) continue;
      for (int c = 0; c < 3; ++c)
        largest = std::max(largest, std::abs(Channel(ofA[x], c) - Channel(ofB[x], c)));
    }
  }
  return largest;
}

base::Bitmap Slope(base::PixelSize size) {
  base::Bitmap slope(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const auto red = static_cast<base::Pixel>(x * 255 / size.width);
      const auto blue = static_cast<base::Pixel>(y * 255 / size.height);
      slope.row(y)[x] = 0xFF000000U | red << 16 | blue;
    }
  }
  slope.setOpaque(true);
  return slope;
}

}  // namespace support
