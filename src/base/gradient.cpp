#include "base/gradient.h"

#include <algorithm>

#include "base/color.h"

namespace base {

namespace {

Pixel BandPixel(const GradientColor& top, int band) {
  const auto component = [band](int value) { return std::max(std::clamp(value, 0, 255) - band, 0); };
  return OpaquePixel(Rgb(component(top.red), component(top.green), component(top.blue)));
}

}  // namespace

int GradientBandOfRow(int row, int height) {
  return static_cast<int>(static_cast<long long>(row) * kGradientBands / height);
}

Bitmap DrawGradient(PixelSize size, const GradientColor& top) {
  Bitmap gradient = Bitmap::unfilled(size);
  for (int row = 0; row < size.height; ++row) {
    std::fill_n(gradient.row(row), size.width, BandPixel(top, GradientBandOfRow(row, size.height)));
  }
  gradient.setOpaque(true);
  return gradient;
}

}  // namespace base
