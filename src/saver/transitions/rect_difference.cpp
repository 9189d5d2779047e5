#include "saver/transitions/rect_difference.h"

namespace saver {

std::vector<base::PixelRect> Difference(const base::PixelRect& whole, const base::PixelRect& hole) {
  std::vector<base::PixelRect> parts;
  const auto add = [&parts](const base::PixelRect& part) {
    if (!part.isEmpty()) parts.push_back(part);
  };
  const base::PixelRect cut = whole.intersected(hole);
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

}  // namespace saver
