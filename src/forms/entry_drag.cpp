#include "forms/entry_drag.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace forms {

namespace {

constexpr int kFastest = 20;  // entries at a step

}  // namespace

int ListSight::entryAt(int y) const {
  if (y < 0 || y >= height) return -1;
  const int entry = top + y / lineHeight;
  return entry < count ? entry : -1;
}

int ListSight::gapAt(int y) const {
  const int inSight = std::clamp(y, 0, height);
  return std::clamp(top + (inSight + lineHeight / 2) / lineHeight, 0, count);
}

int ListSight::scrollStepAt(int y) const {
  if (y < 0) return std::max(-kFastest, -1 + y / lineHeight);
  if (y >= height) return std::min(kFastest, 1 + (y - height) / lineHeight);
  return 0;
}

void EntryDrag::press(base::PixelPoint at) {
  start_ = at;
  gap_ = -1;
}

void EntryDrag::moveTo(base::PixelPoint at, const ListSight& sight, base::PixelSize slack) {
  if (!start_) return;
  const bool left = std::abs(at.x - start_->x) > slack.width || std::abs(at.y - start_->y) > slack.height;
  if (isDragging() || left) gap_ = sight.gapAt(at.y);
}

std::optional<int> EntryDrag::release() {
  start_.reset();
  const int gap = std::exchange(gap_, -1);
  return gap < 0 ? std::nullopt : std::optional(gap);
}

}  // namespace forms
