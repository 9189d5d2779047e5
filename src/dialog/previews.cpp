#include "dialog/previews.h"

#include <algorithm>
#include <memory>

#include "forms/image.h"

namespace dialog {

base::SharedBitmap DrawThumbnail(const forms::Picture& picture, base::PixelSize box) {
  const base::PixelSize size = forms::FitInside(picture.size(), box);
  const base::SharedBitmap drawn = picture.drawnAt(size);
  if (!drawn) return nullptr;
  auto thumbnail = std::make_shared<base::Bitmap>(box);
  const base::PixelPoint corner{(box.width - size.width) / 2, (box.height - size.height) / 2};
  base::CopyRect(thumbnail->view(), corner, *drawn, base::PixelRect::ofSize(size));
  return thumbnail;
}

base::Bitmap DrawGradient(base::PixelSize size, int red, int green, int blue) {
  base::Bitmap drawn(size);
  drawn.setOpaque(true);
  const auto faded = [](int component, int by) { return std::max(0, std::clamp(component, 0, 255) - by); };
  for (int y = 0; y < size.height; ++y) {
    const int band = static_cast<int>(static_cast<long long>(y) * 256 / size.height);
    const base::PackedColor color = base::Rgb(faded(red, band), faded(green, band), faded(blue, band));
    std::fill_n(drawn.row(y), size.width, base::OpaquePixel(color));
  }
  return drawn;
}

}  // namespace dialog
