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

// Of an image of `size` whose corner stands at `at`, the part on the screen.
base::PixelRect PartSeen(base::PixelSize size, base::PixelPoint at, base::PixelSize screen) {
  return base::PixelRect::ofSize(size).intersected(base::PixelRect::ofSize(screen).movedBy(-at.x, -at.y));
}

}  // namespace

std::optional<BackgroundKind> BackgroundKindNumbered(double backEffect) {
  return Numbered(backEffect, BackgroundKind::Gradient);
}

std::optional<ImageLayout> ImageLayoutNumbered(double backgroundDisplay) {
  return Numbered(backgroundDisplay, ImageLayout::Tiled);
}

std::optional<base::Bitmap> ComposeImage(const pictures::Picture& image, ImageLayout layout,
                                         base::PixelSize screen, int twipsPerPixel, base::Pixel background) {
  const bool stretched = layout == ImageLayout::Stretched;
  const base::PixelSize size = stretched ? screen : image.size();
  if (size.isEmpty()) return std::nullopt;
  base::PixelPoint first;  // where the image stands, or the first of its tiles
  if (layout == ImageLayout::Centered) {
    first = {Margin(screen.width, size.width, twipsPerPixel),
             Margin(screen.height, size.height, twipsPerPixel)};
  }
  // Of an image that leaves the screen only what is seen: a scan may be a hundred times larger.
  const base::PixelRect seen = PartSeen(size, first, screen);
  const base::SharedBitmap drawn = stretched ? image.drawnAt(size) : image.drawnPart(seen);
  if (!drawn || drawn->isEmpty()) return std::nullopt;
  base::Bitmap composed(screen, background);
  const base::PixelSize step = layout == ImageLayout::Tiled ? size : screen;
  for (int y = first.y + seen.top; y < screen.height; y += step.height) {
    for (int x = first.x + seen.left; x < screen.width; x += step.width) {
      base::BlendRect(composed.view(), {x, y}, *drawn, base::PixelRect::ofSize(drawn->size()));
    }
  }
  return composed;
}

}  // namespace saver
