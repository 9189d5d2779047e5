#include "pictures/dusk_landscape.h"

#include <array>
#include <memory>

#include "pictures/noise.h"
#include "pictures/trees.h"

namespace pictures {

namespace {

constexpr float kShore = 0.735F;  // where the far water begins
constexpr float kSunX = 1.02F;
constexpr float kSunY = 0.475F;

float ToSun(float x, float y) { return std::hypot(x - kSunX, (y - kSunY) * 1.15F); }

// One chain of mountains, seen through the air before it.
struct Ridge {
  float top;  // of the chain's middle
  float height;
  float width;  // of one mountain
  std::uint32_t seed;
  Color color;  // of the crest
  float haze;   // how much air lies at its foot
};

const std::array<Ridge, 5> kRidges = {{
    {0.525F, 0.175F, 0.62F, 11, Hex(0xA5789A), 0.78F},
    {0.565F, 0.130F, 0.50F, 23, Hex(0x84648E), 0.70F},
    {0.605F, 0.095F, 0.36F, 37, Hex(0x604E7C), 0.62F},
    {0.650F, 0.080F, 0.44F, 41, Hex(0x443B66), 0.50F},
    {0.695F, 0.050F, 0.30F, 59, Hex(0x2C2A4E), 0.30F},
}};

// The crest's y at x.
float CrestOf(const Ridge& ridge, float x) {
  const float at = x / ridge.width + static_cast<float>(ridge.seed) * 3.7F;
  const float crests = Crests(at, 0.37F, ridge.seed, 6);
  return ridge.top + ridge.height * (0.62F - crests * 1.05F);
}

Color Sky(float x, float y) {
  static const std::vector<GradientStop> kSky = {
      {0.00F, Hex(0x1B2550)}, {0.16F, Hex(0x39376F)}, {0.32F, Hex(0x78508C)}, {0.44F, Hex(0xC66B86)},
      {0.53F, Hex(0xF0925F)}, {0.60F, Hex(0xFFC27A)}, {0.70F, Hex(0xFFDDA0)}};
  const float near = std::exp(-ToSun(x, y) * 1.5F);
  Color sky = Gradient(kSky, y - 0.035F + near * 0.07F);
  sky = Screen(sky, Hex(0xFF8A3C) * (0.42F * std::exp(-ToSun(x, y) * 4.2F)));
  return Screen(sky, Hex(0xFFE2A0) * (0.75F * std::exp(-ToSun(x, y) * 13.0F)));
}

// Long thin clouds, lit from below.
Color Clouds(const Color& sky, float x, float y) {
  const float band = Smooth(0.06F, 0.20F, y) * (1.0F - Smooth(0.40F, 0.50F, y));
  const auto thickness = [](float px, float py) {
    const float bend = 0.10F * Rough(px * 1.3F, py * 3.0F, 71, 3);
    return Smooth(0.02F, 0.55F, Rough(px * 1.5F + 3.0F, (py + bend) * 9.5F - px * 0.9F, 73, 6, 0.55F));
  };
  const float here = thickness(x, y) * band;
  const float below = thickness(x - 0.008F, y + 0.014F) * band;
  const float lit = Clamp01(0.5F + (here - below) * 2.4F);
  const float near = std::exp(-ToSun(x, y) * 2.0F);
  const Color dark = Mix(Hex(0x4A3A70), Hex(0xA8597A), Smooth(0.15F, 0.42F, y));
  const Color bright = Mix(Hex(0xE88A8E), Hex(0xFFD79A), Clamp01(near * 1.5F));
  return Mix(sky, Mix(dark, bright, lit), here * 0.72F);
}

Color Sun(const Color& sky, float x, float y) {
  const float disc = 1.0F - Smooth(0.036F, 0.038F, std::hypot(x - kSunX, y - kSunY));
  return Mix(sky, Hex(0xFFF6D6), disc);
}

Color HazeAt(float x, float y) {
  const Color far = Mix(Hex(0xC58A9C), Hex(0xFFC58C), std::exp(-ToSun(x, y) * 2.1F));
  return Screen(far, Hex(0xFFB060) * (0.25F * std::exp(-ToSun(x, y) * 5.0F)));
}

Color RidgeColor(const Ridge& ridge, float x, float y, float crest) {
  const float down = Clamp01((y - crest) / (kShore - ridge.top + 0.03F));
  // Gullies run down from the crest; the flank that looks at the sun is lighter.
  const float slope = CrestOf(ridge, x + 0.006F) - CrestOf(ridge, x - 0.006F);
  const float side = std::clamp(slope * (x < kSunX ? -18.0F : 18.0F), -1.0F, 1.0F);
  const float grain = Rough(x * 26.0F + down * 2.0F, y * 15.0F, ridge.seed + 7, 4, 0.6F);
  const float fade = 1.0F - Smooth(0.0F, 0.65F, down);
  const float near = std::exp(-ToSun(x, y) * 2.4F);
  Color color = ridge.color * (1.0F + 0.13F * side * fade + 0.16F * grain * fade);
  color = Screen(color, Hex(0xFF9A5C) * (0.30F * near * (0.65F + 0.35F * side * fade)));
  const float drift = 0.20F * Rough(x * 3.0F, y * 11.0F, ridge.seed + 3, 4);
  const float haze = ridge.haze * Smooth(0.02F, 1.0F, down + drift);
  return Mix(color, HazeAt(x, y), haze);
}

// Everything above the water.
Color Land(float x, float y) {
  for (auto ridge = kRidges.rbegin(); ridge != kRidges.rend(); ++ridge) {
    const float crest = CrestOf(*ridge, x);
    if (y > crest) return RidgeColor(*ridge, x, y, crest);
  }
  return Sun(Clouds(Sky(x, y), x, y), x, y);
}

Color Water(const std::function<Color(float, float)>& above, float x, float y) {
  const float depth = (y - kShore) / (1.0F - kShore);
  const float scale = 9.0F + 190.0F * (1.0F - depth) * (1.0F - depth);
  const float wave = Rough(x * 5.0F + 2.0F, depth * scale, 91, 4, 0.6F);
  const float fine = Rough(x * 22.0F, depth * scale * 2.6F, 97, 3, 0.6F);
  const float mirrored = kShore - (y - kShore) * (1.28F + 0.25F * depth);
  const float sway = (0.008F + 0.060F * depth) * (wave + 0.5F * fine);
  Color color = above(x + sway * 0.35F, std::clamp(mirrored + sway, 0.0F, kShore - 0.002F));
  color = Mix(color * Hex(0xD2C4DC), Hex(0x2A2A55), 0.10F + 0.38F * depth);
  // The sun's path, broken by the waves.
  const float path = std::exp(-std::pow((x - kSunX) / (0.045F + 0.10F * depth), 2.0F));
  const float spark = Smooth(0.05F, 0.60F, wave * 0.8F + fine * 0.7F + 0.18F);
  color = Screen(color, Hex(0xFFC07A) * (path * (0.18F + 0.62F * spark) * (1.0F - 0.45F * depth)));
  // Mist over the far water.
  return Mix(color, HazeAt(x, kShore), 0.55F * std::exp(-depth * 16.0F));
}

// The near bank in both lower corners.
float BankAt(float x) {
  const float left = 0.905F + 0.16F * Smooth(0.0F, 0.62F, x) + 0.006F * Rough(x * 30.0F, 0.0F, 101, 4);
  const float right =
      0.955F + 0.16F * Smooth(0.0F, 0.48F, 1.6F - x) + 0.006F * Rough(x * 30.0F, 2.0F, 101, 4);
  return std::min(left, right);
}

Color Vignette(const Color& color, float x, float y) {
  const float away = std::hypot((x - 0.8F) / 0.8F, (y - 0.5F) / 0.5F);
  return color * (1.0F - 0.20F * Smooth(0.75F, 1.45F, away));
}

struct Woods {
  Forest far{{-0.02F, 1.64F, 0.0065F, 0.006F, 0.022F}, 211, [](float) { return kShore + 0.003F; }};
  Forest left{{-0.02F, 0.42F, 0.040F, 0.13F, 0.50F}, 223, [](float x) { return BankAt(x) + 0.015F; }};
  Forest right{{1.36F, 1.64F, 0.042F, 0.10F, 0.30F}, 227, [](float x) { return BankAt(x) + 0.012F; }};
};

}  // namespace

Scene DuskLandscape() {
  const auto woods = std::make_shared<const Woods>();
  return [woods](float x, float y) {
    const auto beyond = [&woods](float px, float py) {
      return woods->far.covers(px, py) ? Mix(Hex(0x1F1E40), HazeAt(px, py), 0.22F) : Land(px, py);
    };
    if (y > BankAt(x) || woods->left.covers(x, y) || woods->right.covers(x, y)) {
      const float grain = Rough(x * 60.0F, y * 60.0F, 131, 3);
      const Color dark = Mix(Hex(0x14142B), Hex(0x07070F), Smooth(0.70F, 1.0F, y));
      return Vignette(dark * (1.0F + 0.25F * grain), x, y);
    }
    const Color color = y > kShore ? Water(beyond, x, y) : beyond(x, y);
    return Vignette(color, x, y);
  };
}

}  // namespace pictures
