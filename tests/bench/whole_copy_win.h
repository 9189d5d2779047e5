// What drawing on a window is compared with: one copy of a picture.
#pragma once

#include <windows.h>

#include "os/dib_win.h"
#include "saver/stage_window.h"

namespace bench {

// One BitBlt of a picture from memory to a window, which must outlive this.
class WholeCopy {
 public:
  WholeCopy(const base::Bitmap& picture, const saver::StageWindow& window)
      : picture_(picture.size()), size_(picture.size()), window_(window) {
    base::CopyRect(picture_.view(), {0, 0}, picture, base::PixelRect::ofSize(size_));
  }

  void run() const {
    const os::WindowDc dc(reinterpret_cast<HWND>(window_.handle()));
    BitBlt(dc.get(), 0, 0, size_.width, size_.height, picture_.dc(), 0, 0, SRCCOPY);
    GdiFlush();
  }

 private:
  os::Dib picture_;
  base::PixelSize size_;
  const saver::StageWindow& window_;
};

}  // namespace bench
