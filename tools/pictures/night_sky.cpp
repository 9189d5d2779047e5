#include "pictures/night_sky.h"

#include <algorithm>
#include <array>
#include <memory>

#include "pictures/noise.h"
#include "pictures/trees.h"

namespace pictures {

namespace {

constexpr float kShore = 0.74F;

Color Dark(float y) {
  static const std::vector<GradientStop> kNight = {{0.00F, Hex(0x040818)},
                                                   {0.30F, Hex(0x0A1633)},
                                                   {0.55F, Hex(0x14284C)},
                                                   {0.68F, Hex(0x1F3F5C)},
                                                   {0.76F, Hex(0x2C5464)}};
  return Gradient(kNight, y);
}

// Across the Milky Way: 0 on its middle line, which runs from the lower left to the upper right.
float AcrossGalaxy(float x, float y) { return (x - 1.02F) * 0.80F + (y - 0.22F) * 0.60F; }
float AlongGalaxy(float x, float y) { return (x - 1.02F) * -0.60F + (y - 0.22F) * 0.80F; }

float Galaxy(float x, float y) {
  const float along = AlongGalaxy(x, y);
  const float across = AcrossGalaxy(x, y) + 0.05F * Rough(along * 2.2F, 5.0F, 311, 3);
  const float wide = std::exp(-std::pow(across / 0.17F, 2.0F));
  const float cloud = 0.55F + 0.75F * Rough(along * 4.0F, across * 6.0F, 313, 6, 0.6F);
  const float lane = std::exp(-std::pow((across - 0.012F) / 0.055F, 2.0F)) *
                     Smooth(-0.25F, 0.45F, Rough(along * 5.0F + 9.0F, across * 11.0F, 317, 6, 0.62F));
  return Clamp01(wide * cloud * (1.0F - 0.80F * lane));
}

// A star in some of the cells of a grid.
Color StarsOf(float x, float y, float cells, float share, float size, std::uint32_t seed) {
  const int cx = static_cast<int>(std::floor(x * cells));
  const int cy = static_cast<int>(std::floor(y * cells));
  Color sum;
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) {
      const int ix = cx + dx;
      const int iy = cy + dy;
      if (Chance(ix, iy, seed) > share) continue;
      const float px = (static_cast<float>(ix) + Chance(ix, iy, seed + 1)) / cells;
      const float py = (static_cast<float>(iy) + Chance(ix, iy, seed + 2)) / cells;
      const float magnitude = std::pow(Chance(ix, iy, seed + 3), 4.0F);
      const float away = std::hypot(x - px, y - py) / (size * (0.6F + 0.9F * magnitude));
      if (away > 6.0F) continue;
      const float light =
          (0.25F + 0.9F * magnitude) * (std::exp(-away * away * 1.6F) + 0.05F * magnitude * std::exp(-away));
      const Color tint = Mix(Hex(0xFFD9B0), Hex(0xBFD6FF), Chance(ix, iy, seed + 4));
      sum = sum + tint * light;
    }
  }
  return sum;
}

// One curtain of light: a bright lower hem along a winding line, rays upwards from it.
struct Curtain {
  float base;
  float wind;    // how far the line winds
  float height;  // of the rays
  float strength;
  std::uint32_t seed;
  float from;
  float to;
};

const std::array<Curtain, 3> kCurtains = {{{0.500F, 0.17F, 0.50F, 1.00F, 401, -0.5F, 1.25F},
                                           {0.590F, 0.08F, 0.24F, 0.75F, 419, -0.3F, 1.60F},
                                           {0.330F, 0.16F, 0.36F, 0.50F, 433, -0.5F, 0.80F}}};

Color Aurora(const Curtain& curtain, float x, float y) {
  const float fold = x + 0.09F * Rough(x * 2.6F, y * 0.9F, curtain.seed + 1, 3);
  const float line = curtain.base + curtain.wind * Rough(fold * 1.5F + 0.4F, 1.0F, curtain.seed, 3, 0.45F);
  const float rays = Clamp01(0.55F + 0.75F * Rough(fold * 10.0F, y * 0.22F, curtain.seed + 2, 5, 0.62F));
  const float up = (line - y + 0.05F * (rays - 0.5F)) / (curtain.height * (0.55F + 0.9F * rays));
  const float body = std::exp(-std::max(up, 0.0F) * 2.7F) * Smooth(-0.10F, 0.10F, up);
  const float patches = Smooth(-0.55F, 0.25F, Rough(x * 1.4F, 3.0F, curtain.seed + 3, 3));
  const float ends =
      Smooth(curtain.from, curtain.from + 0.45F, x) * (1.0F - Smooth(curtain.to - 0.55F, curtain.to, x));
  const float light = curtain.strength * body * (0.25F + 0.75F * rays) * (0.2F + 0.8F * patches) * ends;
  const Color tint = up < 0.4F ? Mix(Hex(0x86FFB8), Hex(0x2FE6A4), Smooth(-0.05F, 0.4F, up))
                               : Mix(Hex(0x2FE6A4), Hex(0x8A5AE0), Smooth(0.4F, 1.15F, up));
  return tint * light;
}

Color Sky(float x, float y, bool withFineStars) {
  Color sky = Dark(y + 0.02F * Rough(x * 2.0F, y * 2.0F, 307, 3));
  const float galaxy = Galaxy(x, y) * (1.0F - Smooth(0.42F, 0.70F, y));
  const Color glow = Mix(Hex(0x5B6FA8), Hex(0xE8C8B8), galaxy);
  sky = Screen(sky, glow * (0.52F * galaxy));
  const float air = 1.0F - Smooth(0.45F, 0.74F, y) * 0.85F;
  Color stars = StarsOf(x, y, 26.0F, 0.30F, 0.0019F, 331);
  stars = stars + StarsOf(x, y, 70.0F, 0.26F, 0.0011F, 347) * 0.85F;
  if (withFineStars) {
    stars = stars + StarsOf(x, y, 210.0F, 0.10F + 0.50F * galaxy, 0.00075F, 353) * (0.42F + 0.45F * galaxy);
  }
  sky = Screen(sky, stars * air);
  for (const Curtain& curtain : kCurtains) sky = Screen(sky, Aurora(curtain, x, y));
  return sky;
}

struct Range {
  float top;
  float height;
  float width;
  std::uint32_t seed;
  Color color;
};

const std::array<Range, 3> kRanges = {{{0.640F, 0.165F, 0.60F, 503, Hex(0x18304A)},
                                       {0.675F, 0.120F, 0.44F, 521, Hex(0x10233A)},
                                       {0.712F, 0.070F, 0.33F, 547, Hex(0x0A182A)}}};

float CrestOf(const Range& range, float x) {
  const float at = x / range.width + static_cast<float>(range.seed) * 1.3F;
  return range.top + range.height * (0.66F - Crests(at, 0.51F, range.seed, 6) * 1.05F);
}

// Dark slopes that take a little light from the aurora in the west, with mist at their feet.
Color RangeColor(const Range& range, float x, float y, float crest) {
  const float down = Clamp01((y - crest) / (kShore - range.top + 0.06F));
  const float slope = CrestOf(range, x + 0.006F) - CrestOf(range, x - 0.006F);
  const float side = std::clamp(slope * -16.0F, -1.0F, 1.0F);
  const float grain = Rough(x * 26.0F + down * 2.0F, y * 15.0F, range.seed + 5, 4, 0.6F);
  const float fade = 1.0F - Smooth(0.0F, 0.7F, down);
  const float west = 1.0F - Smooth(0.2F, 1.5F, x);
  Color color = range.color * (1.0F + (0.16F * side + 0.20F * grain) * fade);
  color = Screen(color, Hex(0x2E9A80) * (0.20F * west * (0.6F + 0.4F * side) * fade));
  const float drift = 0.25F * Rough(x * 3.0F, y * 12.0F, range.seed + 9, 4);
  return Mix(color, Hex(0x2B5A68), 0.62F * Smooth(0.05F, 1.0F, down + drift));
}

Color Land(float x, float y, bool withFineStars) {
  for (auto range = kRanges.rbegin(); range != kRanges.rend(); ++range) {
    const float crest = CrestOf(*range, x);
    if (y > crest) return RangeColor(*range, x, y, crest);
  }
  return Sky(x, y, withFineStars);
}

float FarBank(float x) { return kShore - 0.004F + 0.004F * Rough(x * 9.0F, 0.0F, 541, 3); }

struct Woods {
  Forest far{{-0.02F, 1.64F, 0.0055F, 0.010F, 0.036F}, 557, [](float x) { return FarBank(x) + 0.004F; }};
  Forest left{{-0.02F, 0.17F, 0.034F, 0.16F, 0.40F}, 563, [](float x) { return bank(x) + 0.01F; }};
  Forest right{{1.22F, 1.64F, 0.038F, 0.16F, 0.52F}, 571, [](float x) { return bank(x) + 0.01F; }};

  static float bank(float x) {
    const float left = 0.945F + 0.12F * Smooth(0.0F, 0.34F, x);
    const float right = 0.915F + 0.15F * Smooth(0.0F, 0.60F, 1.6F - x);
    return std::min(left, right) + 0.005F * Rough(x * 34.0F, 0.0F, 577, 4);
  }

  bool coversFar(float x, float y) const { return y > FarBank(x) || far.covers(x, y); }
};

// What the calm lake shows of the other side, drawn out downwards by its faint waves.
Color Water(const Woods& woods, float x, float y) {
  const float depth = (y - kShore) / (1.0F - kShore);
  const float scale = 8.0F + 150.0F * (1.0F - depth) * (1.0F - depth);
  const float wave = Rough(x * 4.0F + 7.0F, depth * scale, 601, 4, 0.55F);
  Color sum;
  constexpr int kTaps = 5;
  for (int tap = 0; tap < kTaps; ++tap) {
    const float spread = (static_cast<float>(tap) / (kTaps - 1) - 0.5F) * (0.012F + 0.05F * depth);
    const float sway = wave * (0.004F + 0.035F * depth);
    const float mirrored = std::clamp(kShore - (y - kShore) * 1.32F + spread + sway, 0.0F, kShore - 0.006F);
    const float at = x + sway * 0.25F;
    sum = sum + (woods.far.covers(at, mirrored) ? Hex(0x050C14) : Land(at, mirrored, false));
  }
  const Color mirror = sum * (1.0F / kTaps);
  const Color color = Mix(mirror * Hex(0xD0E4EC), Hex(0x06101E), 0.06F + 0.26F * depth);
  return Screen(color, Hex(0x4FA090) * (0.20F * std::exp(-depth * 26.0F)));
}

}  // namespace

Scene NightSky() {
  const auto woods = std::make_shared<const Woods>();
  return [woods](float x, float y) {
    if (y > Woods::bank(x) || woods->left.covers(x, y) || woods->right.covers(x, y)) {
      return Hex(0x03060B) * (1.0F + 0.3F * Rough(x * 50.0F, y * 50.0F, 607, 3));
    }
    if (y > kShore) return Water(*woods, x, y);
    if (woods->coversFar(x, y)) return Hex(0x060E16);
    return Land(x, y, true);
  };
}

}  // namespace pictures
