// Looks beyond the documented one, in the real show on fakes.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/noise.h"
#include "support/show_stage.h"

namespace support {

constexpr int kFirstPictureMs = 500;
constexpr int kFrameMs = 17;

// The screen at every frame of a time that begins now, in the middle of changes too.
inline std::vector<base::Bitmap> ScreensWhile(ShowStage& show, int ms) {
  std::vector<base::Bitmap> screens;
  for (int at = kFrameMs; at <= ms; at += kFrameMs) {
    show.loop.postAfter(at, [&] { screens.push_back(show.window.screen); });
  }
  show.runFor(ms + kFrameMs);
  return screens;
}

// The largest difference of a channel between two screens.
inline int Difference(const base::Bitmap& a, const base::Bitmap& b) {
  int largest = 0;
  for (int y = 0; y < a.size().height; ++y) {
    for (int x = 0; x < a.size().width; ++x) {
      for (int c = 0; c < 3; ++c)
        largest = std::max(largest, std::abs(Channel(a.at(x, y), c) - Channel(b.at(x, y), c)));
    }
  }
  return largest;
}

// A picture whose every channel rises smoothly, so that a move by a pixel changes a level by little.
inline base::Bitmap Slope(base::PixelSize size) {
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

class LookShow {
 public:
  void addPixels(const std::string& number, base::Bitmap pixels) {
    show.pictures.add("C:\\pictures\\" + number + ".jpg", std::move(pixels));
    show.set("images/" + number, "C:\\pictures\\" + number + ".jpg");
    show.set("caption/" + number, "");
    show.set("total/total", std::to_string(std::stoi(number) + 1));
  }

  // Looks at the show so many milliseconds after its start, in the middle of a change too.
  void at(int ms, std::function<void()> look) {
    show.loop.postAfter(ms, std::move(look));
    lastMs_ = std::max(lastMs_, ms);
  }
  void run() { show.runFor(lastMs_ + 1); }

  ShowStage show{{320, 240}};

 private:
  int lastMs_ = 0;
};

}  // namespace support
