// Screens of any size, with a desktop of a chosen picture.
#pragma once

#include "os/screen.h"

namespace support {

class FakeScreen : public os::Screen {
 public:
  base::PixelSize primarySize() const override { return size; }
  int dpi() const override { return dotsPerInch; }
  std::vector<base::PixelRect> otherScreens() const override { return others; }
  bool showsAnimations() const override { return animations; }
  base::Bitmap copyDesktop(const base::PixelRect& area) const override {
    ++desktopCopies;
    copied.push_back(area);
    return desktop.isEmpty() ? base::Bitmap(area.size(), 0xFF204060) : desktop;
  }

  base::PixelSize size{1024, 768};
  int dotsPerInch = 96;
  std::vector<base::PixelRect> others;
  base::Bitmap desktop;
  bool animations = true;
  mutable int desktopCopies = 0;
  mutable std::vector<base::PixelRect> copied;
};

}  // namespace support
