#include "saver/background.h"

#include "base/twips.h"
#include "saver/placement.h"

namespace saver {

namespace {

// The documented numbers of an enumeration run from 0 without a gap.
template <typename Kind>
std::optional<Kind> Numbered(double number, Kind last) {
  for (int k = 0; k <= static_cast<int>(last); ++k) {
    if (number == k) return static_cast<Kind>(k);
  }
  return std::nullopt;
}

// Pixels before an image of `length` in the middle of `room`.
int Margin(int room, int length, int twipsPerPixel) {
  const float edge =
      CenteredEdge(static_cast<float>(room * twipsPerPixel), static_cast<float>(length * twipsPerPixel));
  return base::PixelAtTwips(static_cast<double>(edge), twipsPerPixel);
}

}  // namespace

std::optional<BackgroundKind> BackgroundKindNumbered(double backEffect) {
  return Numbered(backEffect, BackgroundKind::Gradient);
}

std::optional<ImageLayout> ImageLayoutNumbered(double backgroundDisplay) {
  return Numbered(backgroundDisplay, ImageLayout::Tiled);
}

std::optional<base::Bitmap> ComposeImage(const forms::Picture& image, ImageLayout layout,
                                         base::PixelSize screen, int twipsPerPixel, base::Pixel background) {
  const base::PixelSize size = layout == ImageLayout::Stretched ? screen : image.size();
  if (size.isEmpty()) return std::nullopt;
  const base::SharedBitmap drawn = image.drawnAt(size);
  if (!drawn || drawn->isEmpty()) return std::nullopt;
  base::Bitmap composed(screen, background);
  const auto lay = [&](base::PixelPoint at) {
    base::BlendRect(composed.view(), at, *drawn, base::PixelRect::ofSize(drawn->size()));
  };
  if (layout == ImageLayout::Tiled) {
    for (int y = 0; y < screen.height; y += size.height) {
      for (int x = 0; x < screen.width; x += size.width) lay({x, y});
    }
  } else {
    lay({Margin(screen.width, size.width, twipsPerPixel), Margin(screen.height, size.height, twipsPerPixel)});
  }
  return composed;
}

}  // namespace saver
