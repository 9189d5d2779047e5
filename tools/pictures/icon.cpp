#include "pictures/icon.h"

#include <array>
#include <cstddef>

#include "pictures/canvas.h"
#include "pictures/png_writer.h"

namespace pictures {

namespace {

struct Paint4 {
  Color color;
  float alpha = 0;
};

// Distance to the border of a square with round corners, below 0 inside. `half`: half its side.
float RoundSquare(float x, float y, float half, float corner) {
  const float dx = std::max(std::fabs(x) - half + corner, 0.0F);
  const float dy = std::max(std::fabs(y) - half + corner, 0.0F);
  return std::hypot(dx, dy) - corner;
}

// The measures of the icon at one size, in parts of its side; small icons get a bolder frame and no glow.
struct Measures {
  explicit Measures(int side)
      : half(side < 32 ? 0.5F : 0.5F - 0.055F),
        frame(std::max(side < 32 ? 1.0F / static_cast<float>(side) : 0.06F, 1.0F / static_cast<float>(side))),
        glow(side < 32 ? 0.0F : 0.055F) {}
  float half;
  float frame;
  float glow;
};

// Mountains within the frame: x from -1 to 1, y from -1 (top) to 1.
bool InMountain(float x, float y, float peakX, float peakY, float steep) {
  return y > peakY + std::fabs(x - peakX) * steep;
}

Color Inside(float x, float y) {
  static const std::vector<GradientStop> kSky = {
      {-1.0F, Hex(0x27306E)}, {-0.35F, Hex(0x8A4E96)}, {0.10F, Hex(0xF0806A)}, {0.45F, Hex(0xFFD08A)}};
  Color color = Gradient(kSky, y);
  const float toSun = std::hypot(x - 0.38F, y + 0.14F);
  color = Screen(color, Hex(0xFFC070) * (0.55F * std::exp(-toSun * 3.0F)));
  if (toSun < 0.27F) color = Hex(0xFFF4CE);
  if (InMountain(x, y, 0.55F, 0.14F, 0.85F)) color = Mix(Hex(0x8C5A92), Hex(0xC98498), Clamp01(y));
  if (InMountain(x, y, -0.30F, -0.36F, 1.05F)) {
    const bool snow =
        y < -0.36F + 0.36F + 0.16F * std::fabs(std::fmod(std::fabs(x + 0.30F) * 4.0F, 1.0F) - 0.5F);
    const bool lit = x > -0.30F + (y + 0.36F) * 0.18F;
    if (snow) {
      color = lit ? Hex(0xFFE9DC) : Hex(0xCBBBE0);
    } else {
      color = lit ? Hex(0x5B4A8C) : Hex(0x40346F);
    }
  }
  if (y > 0.60F + 0.06F * std::sin(x * 3.0F + 0.6F)) color = Mix(Hex(0x241F4C), Hex(0x17143A), Clamp01(y));
  return color;
}

Paint4 PointOf(const Measures& m, float x, float y) {
  const float outside = RoundSquare(x, y, m.half, 0.10F);
  if (outside > 0) {
    if (m.glow <= 0) return {};
    const float light = std::exp(-outside / m.glow * 2.2F);
    return {Hex(0xFFB45A), 0.85F * light * Smooth(m.glow, 0.0F, outside)};
  }
  const float inner = RoundSquare(x, y, m.half - m.frame, 0.05F);
  if (inner > 0) return {Mix(Hex(0xFFF3D2), Hex(0xF0B860), Clamp01(0.5F + (x + y) * 0.8F)), 1.0F};
  const float scale = 1.0F / (m.half - m.frame);
  return {Inside(x * scale, y * scale), 1.0F};
}

std::string Number(std::size_t value, int bytes) {
  std::string out;
  for (int i = 0; i < bytes; ++i)
    out += static_cast<char>(static_cast<unsigned char>(value >> (8 * i) & 0xFF));
  return out;
}

// One pixel as blue, green, red, alpha: the mean of many points, each weighed by how opaque it is.
std::string PixelOf(const Measures& measures, int side, int column, int row) {
  constexpr int kSamples = 8;
  Color sum;
  float alpha = 0;
  for (int i = 0; i < kSamples * kSamples; ++i) {
    const float dx = (static_cast<float>(i % kSamples) + 0.5F) / kSamples;
    const float dy = (static_cast<float>(i / kSamples) + 0.5F) / kSamples;
    const float x = (static_cast<float>(column) + dx) / static_cast<float>(side) - 0.5F;
    const float y = (static_cast<float>(row) + dy) / static_cast<float>(side) - 0.5F;
    const Paint4 point = PointOf(measures, x, y);
    sum = sum + point.color * point.alpha;
    alpha += point.alpha;
  }
  const Color color = alpha > 0 ? sum * (1.0F / alpha) : sum;
  std::string bytes;
  for (const float level : {color.b, color.g, color.r, alpha / (kSamples * kSamples)}) {
    bytes += static_cast<char>(static_cast<unsigned char>(std::lround(Clamp01(level) * 255.0F)));
  }
  return bytes;
}

// The large picture, packed: systems that show it read it so.
std::string PackedPictureOf(int side) {
  const Measures measures(side);
  std::string pixels;
  for (int row = 0; row < side; ++row) {
    for (int column = 0; column < side; ++column) {
      const std::string pixel = PixelOf(measures, side, column, row);
      pixels += {pixel[2], pixel[1], pixel[0], pixel[3]};
    }
  }
  return PngFile(side, pixels);
}

// A picture as icon files hold it: a bitmap header of twice the height, the pixels from the bottom up, then
// the one-bit mask of older systems, where a set bit is transparent.
std::string PictureOf(int side) {
  const Measures measures(side);
  const auto n = static_cast<std::size_t>(side);
  std::string pixels;
  std::string mask;
  for (int row = side - 1; row >= 0; --row) {
    std::string bits((n + 31) / 32 * 4, '\0');
    for (int column = 0; column < side; ++column) {
      const std::string pixel = PixelOf(measures, side, column, row);
      const auto at = static_cast<std::size_t>(column);
      if (static_cast<unsigned char>(pixel[3]) < 128)
        bits[at / 8] = static_cast<char>(bits[at / 8] | 0x80 >> at % 8);
      pixels += pixel;
    }
    mask += bits;
  }
  return Number(40, 4) + Number(n, 4) + Number(n * 2, 4) + Number(1, 2) + Number(32, 2) + Number(0, 4) +
         Number(pixels.size() + mask.size(), 4) + Number(0, 8) + Number(0, 8) + pixels + mask;
}

}  // namespace

std::string IconFile(const std::vector<int>& sides) {
  std::string entries;
  std::string pictures;
  std::size_t at = 6 + 16 * sides.size();
  for (const int side : sides) {
    const std::string picture = side < 256 ? PictureOf(side) : PackedPictureOf(side);
    const std::size_t shown = side == 256 ? 0 : static_cast<std::size_t>(side);  // a byte; 0 stands for 256
    entries += Number(shown, 1) + Number(shown, 1) + Number(0, 2) + Number(1, 2) + Number(32, 2) +
               Number(picture.size(), 4) + Number(at, 4);
    at += picture.size();
    pictures += picture;
  }
  return Number(0, 2) + Number(1, 2) + Number(sides.size(), 2) + entries + pictures;
}

}  // namespace pictures
