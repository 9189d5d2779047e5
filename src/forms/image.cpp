#include "forms/image.h"

#include <algorithm>

namespace forms {

base::PixelSize FitInside(base::PixelSize picture, base::PixelSize box) {
  if (picture.isEmpty() || box.isEmpty()) return {};
  if (picture.width <= box.width && picture.height <= box.height) return picture;
  const auto scaled = [](int length, int numerator, int denominator) {
    const auto product = static_cast<long long>(length) * numerator;
    return std::max(1, static_cast<int>((product + denominator / 2) / denominator));
  };
  const bool widthDecides = static_cast<long long>(picture.width) * box.height >=
                            static_cast<long long>(picture.height) * box.width;
  if (widthDecides)
    return {box.width, std::min(box.height, scaled(picture.height, box.width, picture.width))};
  return {std::min(box.width, scaled(picture.width, box.height, picture.height)), box.height};
}

}  // namespace forms
