// The compositions that can lie behind the show's pictures, as bitmaps of the screen's size.
#pragma once

#include <optional>

#include "base/bitmap.h"
#include "base/geometry.h"
#include "forms/picture.h"

namespace saver {

// What the user chose; the numbers are those of `backEffect`.
enum class BackgroundKind { SolidColor = 0, Desktop = 1, CustomImage = 2, Gradient = 3 };

// Nothing for any other number.
std::optional<BackgroundKind> BackgroundKindNumbered(double backEffect);

// How a custom image is laid out; the numbers are those of `backgroundDisplay`.
enum class ImageLayout { Centered = 0, Stretched = 1, Tiled = 2 };

// Nothing for any other number.
std::optional<ImageLayout> ImageLayoutNumbered(double backgroundDisplay);

// The image over a screen of the default background: in the middle at its own size, stretched over the whole
// screen, or repeated from the top left corner and cut at the edges. The middle is found in twips, its half
// cut toward zero. Nothing when the image cannot be decoded.
std::optional<base::Bitmap> ComposeImage(const forms::Picture& image, ImageLayout layout,
                                         base::PixelSize screen, int twipsPerPixel, base::Pixel background);

}  // namespace saver
