#include "saver/surround.h"

#include <algorithm>
#include <cstdint>

#include "base/blur.h"
#include "base/resample.h"
#include "base/text.h"

namespace saver {

namespace {

// What is out of focus needs few pixels: it is blurred small and enlarged, which costs next to nothing.
constexpr int kSmaller = 16;
constexpr int kBlurRadius = 3;  // of the small picture

// Of 256: bright enough to show its colours, dark enough that the picture stands out.
constexpr std::uint32_t kBrightness = 128;

// The largest part of the screen's proportions, from the middle.
base::PixelRect CoveringPart(base::PixelSize picture, base::PixelSize screen) {
  const std::int64_t wide = static_cast<std::int64_t>(picture.width) * screen.height;
  const std::int64_t high = static_cast<std::int64_t>(picture.height) * screen.width;
  base::PixelSize part = picture;
  if (wide > high) {
    part.width = std::max(1, static_cast<int>(high / screen.height));
  } else {
    part.height = std::max(1, static_cast<int>(wide / screen.width));
  }
  return {(picture.width - part.width) / 2, (picture.height - part.height) / 2, part.width, part.height};
}

// Alpha stays.
void Darken(base::Bitmap& picture) {
  for (int y = 0; y < picture.size().height; ++y) {
    base::Pixel* row = picture.row(y);
    for (int x = 0; x < picture.size().width; ++x) {
      base::Pixel dark = row[x] & 0xFF000000U;
      for (int shift = 0; shift < 24; shift += 8) {
        dark |= (((row[x] >> shift) & 0xFF) * kBrightness >> 8) << shift;
      }
      row[x] = dark;
    }
  }
}

}  // namespace

bool AsksForBlurredSurround(std::string_view text) { return base::EqualAsciiBlind(text, "blur"); }

base::Bitmap MakeSurround(const base::Bitmap& picture, base::PixelSize screen) {
  const base::PixelSize small{std::max(1, screen.width / kSmaller), std::max(1, screen.height / kSmaller)};
  base::Bitmap surround = base::Resample(base::Cropped(picture, CoveringPart(picture.size(), screen)), small);
  base::Blur(surround, kBlurRadius);
  Darken(surround);
  return base::Resample(surround, screen);
}

}  // namespace saver
