#include "base/blur.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace base {

namespace {

constexpr int kPasses = 3;
constexpr std::size_t kChannels = 4;

using Channels = std::array<std::uint32_t, kChannels>;

Channels ChannelsOf(Pixel pixel) {
  return {pixel & 0xFF, (pixel >> 8) & 0xFF, (pixel >> 16) & 0xFF, pixel >> 24};
}

Pixel AverageOf(const Channels& sums, std::uint32_t count) {
  Pixel pixel = 0;
  for (std::size_t c = 0; c < kChannels; ++c) pixel |= ((sums[c] + count / 2) / count) << (8 * c);
  return pixel;
}

// Averages a line of `length` pixels that lie `step` apart; `line` has room for them.
void BlurLine(Pixel* pixels, int length, std::ptrdiff_t step, int radius, std::vector<Pixel>& line) {
  for (int i = 0; i < length; ++i) line[static_cast<std::size_t>(i)] = pixels[i * step];
  const auto at = [&](int i) {
    return ChannelsOf(line[static_cast<std::size_t>(std::clamp(i, 0, length - 1))]);
  };
  Channels sums{};
  for (int i = -radius; i <= radius; ++i) {
    const Channels pixel = at(i);
    for (std::size_t c = 0; c < kChannels; ++c) sums[c] += pixel[c];
  }
  const auto count = static_cast<std::uint32_t>(2 * radius + 1);
  for (int i = 0; i < length; ++i) {
    pixels[i * step] = AverageOf(sums, count);
    const Channels comes = at(i + radius + 1);
    const Channels goes = at(i - radius);
    for (std::size_t c = 0; c < kChannels; ++c) sums[c] += comes[c] - goes[c];
  }
}

}  // namespace

void Blur(Bitmap& picture, int radius) {
  const PixelSize size = picture.size();
  std::vector<Pixel> line(static_cast<std::size_t>(std::max(size.width, size.height)));
  for (int pass = 0; pass < kPasses; ++pass) {
    for (int y = 0; y < size.height; ++y) BlurLine(picture.row(y), size.width, 1, radius, line);
    for (int x = 0; x < size.width; ++x) BlurLine(picture.row(0) + x, size.height, size.width, radius, line);
  }
}

}  // namespace base
