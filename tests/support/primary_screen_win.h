// What the primary screen shows at this moment.
#pragma once

#include "os/screen_win.h"

namespace support {

inline base::Bitmap PrimaryScreen() {
  const os::ScreenWin screen;
  return screen.copyDesktop(base::PixelRect::ofSize(screen.primarySize()));
}

}  // namespace support
