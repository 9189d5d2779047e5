// The size at which a picture is shown.
#pragma once

#include <cstdint>

#include "base/geometry.h"

namespace saver {

// The share of the screen that a picture may take, in whole twips.
struct PictureLimit {
  std::int32_t maxPictureWidth = 0;
  std::int32_t maxPictureHeight = 0;

  // The form's size in twips times the user's scale (0.99 = 99 percent), rounded half to even.
  static PictureLimit of(float formWidth, float formHeight, float pictureScale);

  bool operator==(const PictureLimit&) const = default;
};

// A loaded picture in whole twips.
struct LoadedPicture {
  std::int32_t width = 0;  // as the file has it
  std::int32_t height = 0;
  int reduction = 1;   // a power of two by which both are divided before they are multiplied
  int pixelTwips = 0;  // the least that a side is shown with

  // The divided sizes, rounded half to even.
  std::int32_t loadedWidth() const;
  std::int32_t loadedHeight() const;

  bool operator==(const LoadedPicture&) const = default;
};

struct ShownSize {
  std::int32_t width = 0;  // twips
  std::int32_t height = 0;

  bool operator==(const ShownSize&) const = default;
};

// The smallest power of two by which a picture of this size (twips) must be divided so that ScalePictureSize
// does not overflow; 1 for most.
int ReductionFor(const PictureLimit& limit, std::int32_t width, std::int32_t height);

// Fits the longer side alone into the limit: a picture whose longer side is below it keeps its size, whatever
// its other side; a square counts by its width; equal to the limit counts as too large. The other side
// follows in proportion, from a product of 32 bits: throws base::Overflow when it does not fit. A reduction
// keeps the product in range and changes nothing in the result, since the proportion is that of the whole
// picture. No side of a picture is shown with less than one pixel; an empty picture stays empty.
ShownSize ScalePictureSize(const PictureLimit& limit, const LoadedPicture& picture);

// The pixels at which a picture of a size in pixels is shown by these rules, known before any control has it.
base::PixelSize ShownPixels(const PictureLimit& limit, base::PixelSize picture, int twipsPerPixel);

}  // namespace saver
