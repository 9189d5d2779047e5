#include "pictures/noise.h"

#include <cmath>

namespace pictures {

namespace {

std::uint32_t Mixed(std::uint32_t value) {
  value ^= value >> 16;
  value *= 0x7FEB352DU;
  value ^= value >> 15;
  value *= 0x846CA68BU;
  return value ^ value >> 16;
}

// The slope at a corner of the grid, taken at an offset from it.
float Slope(int x, int y, std::uint32_t seed, float dx, float dy) {
  const float angle = Chance(x, y, seed) * 6.2831853F;
  return std::cos(angle) * dx + std::sin(angle) * dy;
}

float Blend(float from, float to, float t) {
  return from + (to - from) * (t * t * t * (t * (t * 6 - 15) + 10));
}

}  // namespace

float Chance(int x, int y, std::uint32_t seed) {
  const std::uint32_t mixed =
      Mixed(static_cast<std::uint32_t>(x) + Mixed(static_cast<std::uint32_t>(y) + Mixed(seed + 0x9E3779B9U)));
  return static_cast<float>(mixed >> 8) / 16777216.0F;
}

float Hills(float x, float y, std::uint32_t seed) {
  const float fx = std::floor(x);
  const float fy = std::floor(y);
  const int ix = static_cast<int>(fx);
  const int iy = static_cast<int>(fy);
  const float dx = x - fx;
  const float dy = y - fy;
  const float above = Blend(Slope(ix, iy, seed, dx, dy), Slope(ix + 1, iy, seed, dx - 1, dy), dx);
  const float below =
      Blend(Slope(ix, iy + 1, seed, dx, dy - 1), Slope(ix + 1, iy + 1, seed, dx - 1, dy - 1), dx);
  return Blend(above, below, dy) * 1.41F;
}

float Rough(float x, float y, std::uint32_t seed, int octaves, float roughness) {
  float sum = 0;
  float height = 1;
  float total = 0;
  for (int i = 0; i < octaves; ++i) {
    sum += Hills(x, y, seed + static_cast<std::uint32_t>(i) * 101U) * height;
    total += height;
    height *= roughness;
    x *= 2.03F;
    y *= 2.03F;
  }
  return sum / total;
}

float Crests(float x, float y, std::uint32_t seed, int octaves) {
  float sum = 0;
  float height = 0.5F;
  for (int i = 0; i < octaves; ++i) {
    const float crest = 1.0F - std::fabs(Hills(x, y, seed + static_cast<std::uint32_t>(i) * 131U));
    sum += crest * crest * height;
    height *= 0.5F;
    x *= 2.07F;
    y *= 2.07F;
  }
  return sum;
}

}  // namespace pictures
