// The show's full-screen window.
#pragma once

#include <windows.h>

#include <functional>

#include "os/dib_win.h"
#include "saver/stage_window.h"

namespace saver {

class StageWindowWin : public StageWindow {
 public:
  // Runs a handler at the event border: nothing that it throws may cross a window procedure.
  using Guard = std::function<void(const std::function<void()>&)>;

  // Makes the window, hidden, borderless and above everything.
  StageWindowWin(HINSTANCE instance, Guard guard);
  ~StageWindowWin() override;

  HWND handle() const { return window_.get(); }

  void cover(base::PixelRect area) override;
  void activate() override;
  void close() override;
  base::BitmapView backBuffer() override;
  void present(const base::PixelRect& area) override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
  void paint();

  Guard guard_;
  os::OwnedWindow window_;
  os::Dib back_;
  base::PixelSize size_;
};

}  // namespace saver
