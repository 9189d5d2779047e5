// A full-screen window of the show. It is black until its back buffer is asked for.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>

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

  void cover(base::PixelRect area) override;
  void activate() override;
  std::intptr_t handle() const override { return reinterpret_cast<std::intptr_t>(window_.get()); }
  void close() override;
  base::BitmapView backBuffer() override;
  void present(std::span<const base::PixelRect> areas) override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT receive(UINT message, WPARAM wParam, LPARAM lParam);
  void paint();

  Guard guard_;
  os::OwnedWindow window_;
  std::optional<os::Dib> back_;
  base::PixelSize size_;
};

}  // namespace saver
