#include "base/premultiply.h"

namespace base {

namespace {

// Two channels at once, each multiplied by alpha / 255 and rounded exactly.
Pixel TimesAlpha(Pixel twoChannels, Pixel alpha) {
  const Pixel product = twoChannels * alpha + 0x00800080U;
  return ((product + ((product >> 8) & 0x00FF00FFU)) >> 8) & 0x00FF00FFU;
}

}  // namespace

bool Premultiply(Pixel* pixels, std::size_t count) {
  Pixel everyAlpha = 0xFF000000U;
  for (std::size_t i = 0; i < count; ++i) {
    const Pixel pixel = pixels[i];
    const Pixel alpha = pixel >> 24;
    everyAlpha &= pixel;
    const Pixel redBlue = TimesAlpha(pixel & 0x00FF00FFU, alpha);
    const Pixel green = TimesAlpha((pixel >> 8) & 0xFFU, alpha);
    pixels[i] = (pixel & 0xFF000000U) | green << 8 | redBlue;
  }
  return everyAlpha == 0xFF000000U;
}

void MakeOpaque(Pixel* pixels, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) pixels[i] |= 0xFF000000U;
}

}  // namespace base
