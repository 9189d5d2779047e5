// Drawing into another program's window on this machine.
#pragma once

#include "os/foreign_window.h"
#include "os/handles_win.h"

namespace os {

class ForeignWindowWin : public ForeignWindow {
 public:
  ForeignWindowWin() = default;
  ~ForeignWindowWin() override;

  bool exists(std::intptr_t window) override;
  void draw(std::intptr_t window, const base::Bitmap& picture) override;
  std::optional<base::Pixel> pixelAt(std::intptr_t window, base::PixelPoint place) override;
  bool holdsAnother(std::intptr_t window) override;
  void follow(std::intptr_t window, std::function<void()> closed) override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND follower_ = nullptr;  // the system destroys it together with the window it is in
  std::function<void()> closed_;
};

}  // namespace os
