#include "saver/text_shade.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

#include "base/contrast.h"

namespace saver {

namespace {

// Distances count in thirds of a pixel: 3 to a neighbour, 4 to a diagonal one, which is right within a tenth.
constexpr int kStraight = 3;
constexpr int kDiagonal = 4;
constexpr int kFar = 255;

constexpr double kWantedContrast = 5;  // a little more than is needed where the colour allows it

base::Pixel ShadePixel(base::PackedColor color, int alpha) {
  const auto part = [alpha](int component) {
    return static_cast<base::Pixel>((component * alpha + 127) / 255);
  };
  return static_cast<base::Pixel>(alpha) << 24 | part(base::RedOf(color)) << 16 |
         part(base::GreenOf(color)) << 8 | part(base::BlueOf(color));
}

base::PackedColor ColorOf(base::Pixel pixel) {
  return base::Rgb(static_cast<int>(pixel >> 16 & 0xFF), static_cast<int>(pixel >> 8 & 0xFF),
                   static_cast<int>(pixel & 0xFF));
}

// Distances to the nearest letter, within one buffer: each pixel takes what its neighbours know, once from
// the top left and once from the bottom right.
class Distances {
 public:
  Distances(const os::TextMask& mask, int reach)
      : size_{mask.size.width + 2 * reach, mask.size.height + 2 * reach},
        far_(static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(size_.height), kFar) {
    for (int y = 0; y < mask.size.height; ++y) {
      const os::TextCoverage* from = mask.coverage.data() + static_cast<std::ptrdiff_t>(y) * mask.size.width;
      std::uint8_t* to = row(y + reach) + reach;
      for (int x = 0; x < mask.size.width; ++x) {
        if (from[x].overDarker != 0 || from[x].overLighter != 0) to[x] = 0;
      }
    }
  }

  std::vector<std::uint8_t> take() && {
    for (int y = 0; y < size_.height; ++y) spread(y, y - 1, 0, 1);
    for (int y = size_.height - 1; y >= 0; --y) spread(y, y + 1, size_.width - 1, -1);
    return std::move(far_);
  }

 private:
  std::uint8_t* row(int y) { return far_.data() + static_cast<std::ptrdiff_t>(y) * size_.width; }

  // Along a row, which begins at `x` and goes on by `step`, from its neighbour that is known already.
  void spread(int y, int known, int x, int step) {
    std::uint8_t* here = row(y);
    const std::uint8_t* other = known < 0 || known >= size_.height ? nullptr : row(known);
    const auto at = [this](const std::uint8_t* of, int place) {
      return of == nullptr || place < 0 || place >= size_.width ? kFar : int{of[place]};
    };
    for (int i = 0; i < size_.width; ++i, x += step) {
      const int nearest = std::min({int{here[x]}, at(here, x - step) + kStraight, at(other, x) + kStraight,
                                    at(other, x - 1) + kDiagonal, at(other, x + 1) + kDiagonal});
      here[x] = static_cast<std::uint8_t>(std::min(nearest, kFar));
    }
  }

  base::PixelSize size_;
  std::vector<std::uint8_t> far_;
};

// By distance: whole at first, so that every letter stands in its shade, then softly to nothing.
std::array<std::uint8_t, 256> DepthsWithin(int reach) {
  const double whole = std::max(3, reach / 4) * kStraight;
  const double end = std::max(reach * kStraight, static_cast<int>(whole) + 1);
  std::array<std::uint8_t, 256> depths{};
  for (std::size_t distance = 0; distance < depths.size(); ++distance) {
    const double left = std::clamp((end - static_cast<double>(distance)) / (end - whole), 0.0, 1.0);
    depths[distance] = static_cast<std::uint8_t>(std::lround(left * left * (3 - 2 * left) * 255));
  }
  return depths;
}

}  // namespace

ShadeInk ShadeFor(base::PackedColor text) {
  text = base::PlainColor(text);
  const bool isLight = base::ContrastRatio(text, base::kBlack) >= base::ContrastRatio(text, base::kWhite);
  ShadeInk ink{isLight ? base::kBlack : base::kWhite, 255};
  const base::Pixel worst = base::OpaquePixel(isLight ? base::kWhite : base::kBlack);
  for (int strength = 0; strength < 255; ++strength) {
    const base::Pixel shaded = base::Over(ShadePixel(ink.color, strength), worst);
    if (base::ContrastRatio(text, ColorOf(shaded)) < kWantedContrast) continue;
    ink.strength = static_cast<std::uint8_t>(strength);
    break;
  }
  return ink;
}

int ShadeReach(int lineHeight) { return std::clamp(lineHeight / 3, 6, 48); }

TextShade MakeShade(const os::TextMask& mask, int reach) {
  TextShade shade{
      {mask.size.width + 2 * reach, mask.size.height + 2 * reach}, reach, Distances(mask, reach).take()};
  const std::array<std::uint8_t, 256> depths = DepthsWithin(reach);
  for (std::uint8_t& pixel : shade.depth) pixel = depths[pixel];
  return shade;
}

void BlendShade(const base::BitmapView& target, base::PixelPoint corner, const TextShade& shade,
                const ShadeInk& ink, const base::PixelRect& clip) {
  std::array<base::Pixel, 256> pixels{};
  for (std::size_t depth = 0; depth < pixels.size(); ++depth) {
    pixels[depth] = ShadePixel(ink.color, (static_cast<int>(depth) * ink.strength + 127) / 255);
  }
  const base::PixelRect place = base::PixelRect::ofSize(shade.size).movedBy(corner.x, corner.y);
  const base::PixelRect part = place.intersected(clip).intersected(base::PixelRect::ofSize(target.size));
  for (int y = part.top; y < part.bottom(); ++y) {
    const std::uint8_t* depth =
        shade.depth.data() + static_cast<std::ptrdiff_t>(y - corner.y) * shade.size.width;
    base::Pixel* row = target.row(y);
    for (int x = part.left; x < part.right(); ++x) {
      if (depth[x - corner.x] != 0) row[x] = base::Over(pixels[depth[x - corner.x]], row[x]);
    }
  }
}

}  // namespace saver
