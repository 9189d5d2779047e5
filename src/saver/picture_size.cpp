#include "saver/picture_size.h"

#include <algorithm>
#include <limits>

#include "base/rounding.h"
#include "base/twips.h"

namespace saver {

namespace {

std::int32_t Divided(std::int32_t length, int reduction) {
  return base::ToInt32(static_cast<double>(length) / reduction);
}

// The shorter side in proportion to the longer one.
std::int32_t Proportional(std::int32_t shorter, std::int32_t longer, std::int32_t shownLonger) {
  const double product = static_cast<double>(shorter) * shownLonger;  // exact: below 2^53 for every picture
  return base::ToInt32(product / longer);
}

}  // namespace

PictureLimit PictureLimit::of(float formWidth, float formHeight, float pictureScale) {
  return {base::ToInt32(static_cast<double>(formWidth * pictureScale)),
          base::ToInt32(static_cast<double>(formHeight * pictureScale))};
}

std::int32_t LoadedPicture::loadedWidth() const { return Divided(width, reduction); }

std::int32_t LoadedPicture::loadedHeight() const { return Divided(height, reduction); }

int ReductionFor(const PictureLimit& limit, std::int32_t width, std::int32_t height) {
  const bool portrait = width < height;
  const std::int32_t shorter = portrait ? width : height;
  const std::int32_t longer = portrait ? height : width;
  const std::int32_t limitOfLonger = portrait ? limit.maxPictureHeight : limit.maxPictureWidth;
  if (longer < limitOfLonger) return 1;
  int reduction = 1;
  while (static_cast<std::int64_t>(Divided(shorter, reduction)) * limitOfLonger >
         std::numeric_limits<std::int32_t>::max()) {
    reduction *= 2;
  }
  return reduction;
}

ShownSize ScalePictureSize(const PictureLimit& limit, const LoadedPicture& picture) {
  if (picture.width == 0 || picture.height == 0) return {picture.width, picture.height};
  const auto visible = [&picture](std::int32_t length) { return std::max(length, picture.pixelTwips); };
  if (picture.width < picture.height) {
    if (picture.height < limit.maxPictureHeight) return {picture.width, picture.height};
    const std::int32_t shown = visible(limit.maxPictureHeight);
    base::MultiplyInt32(picture.loadedWidth(), shown);
    return {visible(Proportional(picture.width, picture.height, shown)), shown};
  }
  if (picture.width < limit.maxPictureWidth) return {picture.width, picture.height};
  const std::int32_t shown = visible(limit.maxPictureWidth);
  base::MultiplyInt32(picture.loadedHeight(), shown);
  return {shown, visible(Proportional(picture.height, picture.width, shown))};
}

base::PixelSize ShownPixels(const PictureLimit& limit, base::PixelSize picture, int twipsPerPixel) {
  // A box with a picture has single-precision sides.
  const auto twips = [twipsPerPixel](int pixels) {
    return base::ToInt32(static_cast<double>(static_cast<float>(pixels) * static_cast<float>(twipsPerPixel)));
  };
  const auto pixels = [twipsPerPixel](std::int32_t length) {
    return base::TwipsToPixels(static_cast<double>(static_cast<float>(length)), twipsPerPixel);
  };
  const std::int32_t width = twips(picture.width);
  const std::int32_t height = twips(picture.height);
  const ShownSize shown = ScalePictureSize(limit, {.width = width,
                                                   .height = height,
                                                   .reduction = ReductionFor(limit, width, height),
                                                   .pixelTwips = twipsPerPixel});
  return {pixels(shown.width), pixels(shown.height)};
}

}  // namespace saver
