#include "saver/background.h"

#include <algorithm>

#include "base/rounding.h"
#include "base/twips.h"

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

base::Pixel BandPixel(const GradientColor& top, int band) {
  const auto component = [band](int value) { return std::max(std::clamp(value, 0, 255) - band, 0); };
  return base::OpaquePixel(base::Rgb(component(top.red), component(top.green), component(top.blue)));
}

// Pixels before an image of `length` in the middle of `room`.
int Margin(int room, int length, int twipsPerPixel) {
  const double difference = (static_cast<double>(room) - length) * twipsPerPixel;
  return base::PixelAtTwips(base::WholeDivide(difference, 2), twipsPerPixel);
}

}  // namespace

std::optional<BackgroundKind> BackgroundKindNumbered(double backEffect) {
  return Numbered(backEffect, BackgroundKind::Gradient);
}

std::optional<ImageLayout> ImageLayoutNumbered(double backgroundDisplay) {
  return Numbered(backgroundDisplay, ImageLayout::Tiled);
}

int GradientBandOfRow(int row, int height) {
  return static_cast<int>(static_cast<long long>(row) * kGradientBands / height);
}

base::Bitmap ComposeGradient(base::PixelSize screen, const GradientColor& top) {
  base::Bitmap gradient(screen, base::OpaquePixel(base::kBlack));
  for (int row = 0; row < screen.height; ++row) {
    const base::Pixel pixel = BandPixel(top, GradientBandOfRow(row, screen.height));
    base::FillRect(gradient.view(), {0, row, screen.width, 1}, pixel);
  }
  return gradient;
}

std::optional<base::Bitmap> ComposeImage(const pictures::Picture& image, ImageLayout layout,
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
