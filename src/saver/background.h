// The compositions that can lie behind the show's pictures, as bitmaps of the screen's size.
#pragma once

#include <optional>

#include "base/bitmap.h"
#include "base/geometry.h"
#include "pictures/picture.h"

namespace saver {

// What the user chose; the numbers are those of `backEffect`.
enum class BackgroundKind { SolidColor = 0, Desktop = 1, CustomImage = 2, Gradient = 3 };

// Nothing for any other number.
std::optional<BackgroundKind> BackgroundKindNumbered(double backEffect);

// How a custom image is laid out; the numbers are those of `backgroundDisplay`.
enum class ImageLayout { Centered = 0, Stretched = 1, Tiled = 2 };

// Nothing for any other number.
std::optional<ImageLayout> ImageLayoutNumbered(double backgroundDisplay);

struct GradientColor {
  int red = 0;  // 0 to 255 each; what lies outside is cut to it
  int green = 0;
  int blue = 0;
};

constexpr int kGradientBands = 256;

// The band that a row of a gradient `height` rows high shows: the one in which the row's upper edge lies. So
// the first row is band 0, every row has one, and from 256 rows on the last is band 255.
int GradientBandOfRow(int row, int height);

// 256 bands over the screen's height, each component one less from band to band until it is 0. Opaque.
base::Bitmap ComposeGradient(base::PixelSize screen, const GradientColor& top);

// The image over a screen of the default background: in the middle at its own size, stretched over the whole
// screen, or repeated from the top left corner and cut at the edges. The middle is found in twips, its half
// cut toward zero. Nothing when the image cannot be decoded.
std::optional<base::Bitmap> ComposeImage(const pictures::Picture& image, ImageLayout layout,
                                         base::PixelSize screen, int twipsPerPixel, base::Pixel background);

}  // namespace saver
