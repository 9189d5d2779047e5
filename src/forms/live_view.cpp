#include "forms/live_view.h"

#include <algorithm>

namespace forms {

namespace {

constexpr int kLine = 1;

}  // namespace

base::PixelSize FillInside(base::PixelSize shape, base::PixelSize box) {
  if (shape.isEmpty() || box.isEmpty()) return {1, 1};
  const auto width = static_cast<long long>(shape.width);
  const auto height = static_cast<long long>(shape.height);
  if (width * box.height >= height * box.width) {
    return {box.width, std::max(1, static_cast<int>((height * box.width + width / 2) / width))};
  }
  return {std::max(1, static_cast<int>((width * box.height + height / 2) / height)), box.height};
}

base::PixelSize LiveView::frameSize(base::PixelSize shape) const {
  const base::PixelSize place = pixelRect().size();
  return FillInside(shape, {place.width - 2 * kLine, place.height - 2 * kLine});
}

base::PixelSize LiveView::placeFor(base::PixelSize size) {
  return {size.width + 2 * kLine, size.height + 2 * kLine};
}

void LiveView::frameDrawn(std::span<const base::PixelRect> areas) {
  if (FormHost* shown = host()) shown->controlDrawn(*this, areas);
}

base::PixelRect LiveView::framePlace() const {
  if (!frame_) return {};
  const base::PixelSize place = pixelRect().size();
  const base::PixelSize size = frame_->size();
  return {(place.width - size.width) / 2, (place.height - size.height) / 2, size.width, size.height};
}

}  // namespace forms
