// Another program's window that remembers what was drawn into it.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "os/foreign_window.h"
#include "support/call_log.h"

namespace support {

class FakeForeignWindow : public os::ForeignWindow {
 public:
  explicit FakeForeignWindow(CallLog& log) : log_(log) {}

  bool exists(std::intptr_t which) override { return which == window && open; }
  void draw(std::intptr_t which, const base::Bitmap& picture) override {
    log_.add("draw " + std::to_string(which));
    drawn = picture;
    base::CopyRect(content.view(), {0, 0}, picture, base::PixelRect::ofSize(picture.size()));
  }
  std::optional<base::Pixel> pixelAt(std::intptr_t, base::PixelPoint place) override {
    ++looks;
    if (!readable || !base::PixelRect::ofSize(content.size()).contains(place)) return std::nullopt;
    return content.at(place.x, place.y) | 0xFF000000U;
  }
  bool holdsAnother(std::intptr_t) override { return another; }
  void follow(std::intptr_t which, std::function<void()> closed) override {
    log_.add("follow " + std::to_string(which));
    onClosed = std::move(closed);
  }

  // What the owner does.
  void repaint(base::Pixel color) { content = base::Bitmap(content.size(), color); }
  void close() {
    open = false;
    if (onClosed) std::exchange(onClosed, nullptr)();
  }

  std::intptr_t window = 4711;
  bool open = true;
  bool readable = true;
  bool another = false;
  base::Bitmap content{base::PixelSize{320, 240}, 0xFF808080};
  base::Bitmap drawn;
  int looks = 0;
  std::function<void()> onClosed;

 private:
  CallLog& log_;
};

}  // namespace support
