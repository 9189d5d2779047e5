#include "base/rect_difference.h"

namespace base {

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
