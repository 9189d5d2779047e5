// The screens of this machine.
#pragma once

#include "os/screen.h"

namespace os {

// Dots per inch of the primary screen.
int ScreenDpi();

class ScreenWin : public Screen {
 public:
  base::PixelSize primarySize() const override;
  int dpi() const override;
  std::vector<base::PixelRect> otherScreens() const override;
  bool showsAnimations() const override;
  base::Bitmap copyDesktop(const base::PixelRect& area) const override;
};

}  // namespace os
