// The show's window in memory: what was presented is on its screen, what was only composed is not.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "saver/stage_window.h"

namespace support {

class FakeStageWindow : public saver::StageWindow {
 public:
  explicit FakeStageWindow(base::PixelSize size) { resize(size); }

  void cover(base::PixelRect area) override {
    calls.push_back("cover");
    covered = area;
    if (!(area.size() == back_.size())) resize(area.size());
    if (onCover) onCover();
  }
  void activate() override { calls.push_back("activate"); }
  std::intptr_t handle() const override { return 4711; }
  void close() override {
    calls.push_back("close");
    if (onClose) onClose();
    closed = true;
  }
  base::BitmapView backBuffer() override { return back_.view(); }
  // The last comes first: nobody may count on an order.
  void runParts(int count, const std::function<void(int part)>& run) override {
    mostParts = std::max(mostParts, count);
    for (int part = count - 1; part >= 0; --part) run(part);
  }
  void present(std::span<const base::PixelRect> areas) override {
    for (const base::PixelRect& area : areas) {
      presented.push_back(area);
      base::CopyRect(screen.view(), {area.left, area.top}, back_, area);
    }
  }

  // A paint message for the whole window.
  void paint() {
    if (onPaint) onPaint();
    screen = back_;
  }

  std::vector<std::string> calls;
  base::PixelRect covered;
  std::function<void()> onCover;  // what happens while the window is being placed
  std::function<void()> onClose;  // what is so when it is closed
  bool closed = false;
  int mostParts = 0;  // of a piece of work
  std::vector<base::PixelRect> presented;
  base::Bitmap screen;  // what the user sees

 private:
  void resize(base::PixelSize size) {
    back_ = base::Bitmap(size, 0xFF000000U);
    screen = base::Bitmap(size, 0xFF000000U);
  }

  base::Bitmap back_;
};

}  // namespace support
