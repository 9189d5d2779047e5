#include "saver/fit.h"

#include <algorithm>
#include <cstdint>

#include "base/text.h"

namespace saver {

namespace {

constexpr int kMostEnlarged = 2;

// The other side in proportion, to the nearest pixel (halves up), at least one.
int InProportion(int other, int side, int newSide) {
  const std::int64_t product = static_cast<std::int64_t>(other) * newSide;
  return std::max(1, static_cast<int>((2 * product + side) / (2 * static_cast<std::int64_t>(side))));
}

std::int64_t Product(int a, int b) { return static_cast<std::int64_t>(a) * b; }

// True when more than two fifths of a picture that covers the screen would lie beyond it. What is seen of the
// picture is the smaller ratio of the two products.
bool CutsTooMuch(base::PixelSize picture, base::PixelSize screen) {
  const std::int64_t wide = Product(picture.width, screen.height);
  const std::int64_t high = Product(picture.height, screen.width);
  return 5 * std::min(wide, high) < 3 * std::max(wide, high);
}

}  // namespace

Fit ParseFit(std::string_view text) {
  if (base::EqualAsciiBlind(text, "whole")) return Fit::Whole;
  if (base::EqualAsciiBlind(text, "fill")) return Fit::Fill;
  return Fit::Documented;
}

base::PixelSize WholeSize(base::PixelSize picture, base::PixelSize share) {
  const std::int64_t twiceWide = Product(picture.width, kMostEnlarged);
  const std::int64_t twiceHigh = Product(picture.height, kMostEnlarged);
  if (twiceWide <= share.width && twiceHigh <= share.height) {
    return {static_cast<int>(twiceWide), static_cast<int>(twiceHigh)};
  }
  if (Product(share.width, picture.height) <= Product(share.height, picture.width)) {
    return {share.width, InProportion(picture.height, picture.width, share.width)};
  }
  return {InProportion(picture.width, picture.height, share.height), share.height};
}

FittedPicture FillSize(base::PixelSize picture, base::PixelSize screen, base::PixelSize share) {
  if (CutsTooMuch(picture, screen)) {
    const base::PixelSize whole = WholeSize(picture, share);
    return {whole, base::PixelRect::ofSize(whole)};
  }
  base::PixelSize drawn;
  if (Product(screen.width, picture.height) >= Product(screen.height, picture.width)) {
    drawn = {screen.width, InProportion(picture.height, picture.width, screen.width)};
  } else {
    drawn = {InProportion(picture.width, picture.height, screen.height), screen.height};
  }
  return {
      drawn,
      {(drawn.width - screen.width) / 2, (drawn.height - screen.height) / 2, screen.width, screen.height}};
}

FittedPicture FitPicture(Fit fit, base::PixelSize picture, base::PixelSize screen, base::PixelSize share) {
  if (fit == Fit::Fill) return FillSize(picture, screen, share);
  const base::PixelSize whole = WholeSize(picture, share);
  return {whole, base::PixelRect::ofSize(whole)};
}

}  // namespace saver
