// Looks beyond the documented one, in the real show on fakes.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/show_stage.h"

namespace support {

constexpr int kFirstPictureMs = 500;
constexpr int kFrameMs = 17;

// The screen at every frame of a time that begins now, in the middle of changes too.
std::vector<base::Bitmap> ScreensWhile(ShowStage& show, int ms);

// The largest difference of a channel between two screens.
int Difference(const base::Bitmap& a, const base::Bitmap& b);

// A picture whose every channel rises smoothly, so that a move by a pixel changes a level by little.
base::Bitmap Slope(base::PixelSize size);

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
