#include "base/region.h"

#include <algorithm>

namespace base {

namespace {

// True when one follows the other, touches it or overlaps it.
bool Meet(int from, int length, int otherFrom, int otherLength) {
  return from <= otherFrom + otherLength && otherFrom <= from + length;
}

bool Holds(const PixelRect& outer, const PixelRect& inner) {
  return outer.left <= inner.left && outer.top <= inner.top && outer.right() >= inner.right() &&
         outer.bottom() >= inner.bottom();
}

// True when both together are a rectangle.
bool MakeOne(const PixelRect& a, const PixelRect& b) {
  if (a.top == b.top && a.height == b.height) return Meet(a.left, a.width, b.left, b.width);
  if (a.left == b.left && a.width == b.width) return Meet(a.top, a.height, b.top, b.height);
  return Holds(a, b) || Holds(b, a);
}

}  // namespace

void Region::add(PixelRect rect) {
  if (rect.isEmpty()) return;
  for (;;) {
    const auto found = std::find_if(rects_.begin(), rects_.end(),
                                    [&](const PixelRect& other) { return MakeOne(rect, other); });
    if (found == rects_.end()) break;
    rect = rect.united(*found);
    rects_.erase(found);  // in order: what grows in turns is found at the front
  }
  rects_.push_back(rect);
}

PixelRect Region::largest() const {
  const auto found =
      std::max_element(rects_.begin(), rects_.end(),
                       [](const PixelRect& a, const PixelRect& b) { return a.area() < b.area(); });
  return found == rects_.end() ? PixelRect{} : *found;
}

std::vector<PixelRect> Difference(const PixelRect& whole, const PixelRect& hole) {
  std::vector<PixelRect> parts;
  const auto add = [&parts](const PixelRect& part) {
    if (!part.isEmpty()) parts.push_back(part);
  };
  const PixelRect cut = whole.intersected(hole);
  if (cut.isEmpty()) {
    add(whole);
    return parts;
  }
  add({whole.left, whole.top, whole.width, cut.top - whole.top});
  add({whole.left, cut.top, cut.left - whole.left, cut.height});
  add({cut.right(), cut.top, whole.right() - cut.right(), cut.height});
  add({whole.left, cut.bottom(), whole.width, whole.bottom() - cut.bottom()});
  return parts;
}

}  // namespace base
