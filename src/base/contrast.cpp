#include "base/contrast.h"

#include <algorithm>
#include <cmath>

namespace base {

namespace {

// Of a component of sRGB, as light.
double Linear(int component) {
  const double value = component / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

int Component(double linear) {
  const double value = linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
  return static_cast<int>(std::lround(value * 255));
}

double Luminance(PackedColor color) {
  return 0.2126 * Linear(RedOf(color)) + 0.7152 * Linear(GreenOf(color)) + 0.0722 * Linear(BlueOf(color));
}

PackedColor Between(PackedColor from, PackedColor to, int step, int steps) {
  const auto part = [&](int (*component)(PackedColor)) {
    return component(from) + (component(to) - component(from)) * step / steps;
  };
  return Rgb(part(RedOf), part(GreenOf), part(BlueOf));
}

PackedColor BlackOrWhiteOn(PackedColor background) {
  return ContrastRatio(kWhite, background) >= ContrastRatio(kBlack, background) ? kWhite : kBlack;
}

}  // namespace

double ContrastRatio(PackedColor a, PackedColor b) {
  const double one = Luminance(a) + 0.05;
  const double other = Luminance(b) + 0.05;
  return std::max(one, other) / std::min(one, other);
}

PackedColor WithShareOfLight(PackedColor color, double share) {
  const auto part = [share](int component) { return Component(share * Linear(component)); };
  return Rgb(part(RedOf(color)), part(GreenOf(color)), part(BlueOf(color)));
}

PackedColor ReadableOn(PackedColor color, PackedColor background) {
  constexpr int kSteps = 16;
  const PackedColor end = BlackOrWhiteOn(background);
  for (int step = 0; step < kSteps; ++step) {
    const PackedColor tried = Between(color, end, step, kSteps);
    if (ContrastRatio(tried, background) >= kReadableContrast) return tried;
  }
  return end;
}

PackedColor TextOn(PackedColor color, PackedColor background) {
  return ContrastRatio(color, background) >= kReadableContrast ? color : BlackOrWhiteOn(background);
}

}  // namespace base
