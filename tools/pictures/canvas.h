// A picture while it is being painted: colours as numbers from 0 to 1, as bright as the eye sees them.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "base/geometry.h"

namespace pictures {

struct Color {
  float r = 0;
  float g = 0;
  float b = 0;

  Color operator+(const Color& o) const { return {r + o.r, g + o.g, b + o.b}; }
  Color operator-(const Color& o) const { return {r - o.r, g - o.g, b - o.b}; }
  Color operator*(float f) const { return {r * f, g * f, b * f}; }
  Color operator*(const Color& o) const { return {r * o.r, g * o.g, b * o.b}; }
};

// From a hexadecimal number 0xRRGGBB.
constexpr Color Hex(unsigned rgb) {
  return {static_cast<float>(rgb >> 16 & 0xFF) / 255.0F, static_cast<float>(rgb >> 8 & 0xFF) / 255.0F,
          static_cast<float>(rgb & 0xFF) / 255.0F};
}

inline float Clamp01(float value) { return std::clamp(value, 0.0F, 1.0F); }
inline Color Mix(const Color& from, const Color& to, float amount) { return from + (to - from) * amount; }

// 0 up to `from`, 1 beyond `to`, smooth between them.
inline float Smooth(float from, float to, float value) {
  const float t = Clamp01((value - from) / (to - from));
  return t * t * (3.0F - 2.0F * t);
}

// One light on top of another; never brighter than white.
inline Color Screen(const Color& below, const Color& light) {
  const auto one = [](float a, float b) { return 1.0F - (1.0F - Clamp01(a)) * (1.0F - Clamp01(b)); };
  return {one(below.r, light.r), one(below.g, light.g), one(below.b, light.b)};
}

// A colour that changes along a line through fixed places.
struct GradientStop {
  float place;
  Color color;
};
Color Gradient(const std::vector<GradientStop>& stops, float place);

// Pixels row by row.
struct Canvas {
  explicit Canvas(base::PixelSize s)
      : size(s), pixels(static_cast<std::size_t>(s.width) * static_cast<std::size_t>(s.height)) {}

  Color& at(int x, int y) {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                  static_cast<std::size_t>(x)];
  }
  const Color& at(int x, int y) const { return const_cast<Canvas*>(this)->at(x, y); }

  base::PixelSize size;
  std::vector<Color> pixels;
};

// Paints by asking for the colour of points: (0, 0) is the top-left corner, (width / height, 1) the
// bottom-right one. Each pixel is the mean of `samples` x `samples` points.
using Scene = std::function<Color(float x, float y)>;
Canvas Paint(const Scene& scene, base::PixelSize size, int samples);

// A part of a scene as a scene of its own: from (left, top), `height` high.
Scene PartOf(const Scene& scene, float left, float top, float height);

}  // namespace pictures
