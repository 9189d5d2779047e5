// One show on several screens.
#pragma once

#include <algorithm>
#include <vector>

#include "support/colors.h"
#include "support/started_show.h"

namespace support {

// A primary screen of 1024 x 768, a smaller one at its right, and a portrait one left of and above it.
class ScreensShow : public StartedShow {
 public:
  ScreensShow() { stage.screen.others = {{1024, 100, 800, 600}, {-600, -200, 600, 900}}; }

  void startShowing(const char* otherScreens) {
    stage.set("extras/otherScreens", otherScreens);
    start();
  }

  void addPictures(int count, base::PixelSize size = {400, 300}) {
    for (int i = 0; i < count; ++i) stage.addPicture(size, color(i));
  }

  // Of picture `number` of up to five.
  static base::PackedColor color(int number) {
    constexpr base::PackedColor kColors[] = {kRed, kGreen, kBlue, kYellow, kViolet};
    return kColors[number];
  }

  // The colour in the middle of the primary screen (0), or of one of the others.
  base::Pixel middle(std::size_t screen) {
    const base::Bitmap& shown = screen == 0 ? window().screen : covers.at(screen - 1)->screen;
    return shown.at(shown.size().width / 2, shown.size().height / 2);
  }
  std::vector<base::Pixel> middles() {
    std::vector<base::Pixel> all;
    for (std::size_t screen = 0; screen <= covers.size(); ++screen) all.push_back(middle(screen));
    return all;
  }
  static std::vector<base::Pixel> pixels(std::initializer_list<base::PackedColor> colors) {
    std::vector<base::Pixel> all;
    for (const base::PackedColor color : colors) all.push_back(base::OpaquePixel(color));
    return all;
  }

  // How many columns of the middle row are of a colour.
  static int columns(const base::Bitmap& shown, base::PackedColor color) {
    const base::Pixel* row = shown.row(shown.size().height / 2);
    return static_cast<int>(std::count(row, row + shown.size().width, base::OpaquePixel(color)));
  }
};

}  // namespace support
