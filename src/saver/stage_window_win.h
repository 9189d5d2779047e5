// A full-screen window of the show. It is black until its back buffer is asked for.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>

#include "os/dib_win.h"
#include "os/event_loop.h"
#include "os/thread_pool_win.h"
#include "saver/stage_window.h"

namespace saver {

class StageWindowWin : public StageWindow {
 public:
  // Makes the window, hidden, borderless and above everything. Its events are dispatched by `loop`.
  explicit StageWindowWin(os::EventLoop& loop);
  ~StageWindowWin() override;

  void cover(base::PixelRect area) override;
  void activate() override;
  std::intptr_t handle() const override { return reinterpret_cast<std::intptr_t>(window_.get()); }
  void close() override;
  base::BitmapView backBuffer() override;
  void runParts(int count, const std::function<void(int part)>& run) override {
    os::RunOnAllProcessors(count, run);
  }
  void present(std::span<const base::PixelRect> areas) override;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT receive(UINT message, WPARAM wParam, LPARAM lParam);
  void paint();

  os::EventLoop& loop_;
  os::OwnedWindow owner_;  // never shown
  os::OwnedWindow window_;
  std::shared_ptr<void> displayPower_;  // the system's news of it
  std::optional<os::Dib> back_;
  base::PixelSize size_;
};

}  // namespace saver
