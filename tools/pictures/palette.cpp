#include "pictures/palette.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace pictures {

namespace {

constexpr std::size_t kColors = 256;
constexpr int kMeanRounds = 12;
constexpr std::size_t kMostSamples = 120000;

// How much the eye makes of a difference in each channel.
constexpr Color kWeight{0.55F, 0.75F, 0.40F};

float Distance(const Color& a, const Color& b) {
  const Color d = (a - b) * kWeight;
  return d.r * d.r + d.g * d.g + d.b * d.b;
}

float Channel(const Color& color, int channel) {
  return channel == 0 ? color.r : channel == 1 ? color.g : color.b;
}

// A run of samples, with the channel in which they lie furthest apart.
struct Box {
  std::size_t first;
  std::size_t last;
  int channel = 0;
  float spread = 0;
};

void Measure(Box& box, const std::vector<Color>& samples) {
  box.spread = 0;
  for (int channel = 0; channel < 3; ++channel) {
    float least = 2;
    float most = -1;
    for (std::size_t i = box.first; i < box.last; ++i) {
      least = std::min(least, Channel(samples[i], channel));
      most = std::max(most, Channel(samples[i], channel));
    }
    const float spread = (most - least) * Channel(kWeight, channel);
    if (spread > box.spread) {
      box.spread = spread;
      box.channel = channel;
    }
  }
}

// Large boxes with many samples first; a box of one colour is never cut.
float Urgency(const Box& box) {
  return box.spread * std::pow(static_cast<float>(box.last - box.first), 0.35F);
}

std::vector<Color> MedianCut(std::vector<Color> samples) {
  std::vector<Box> boxes = {{0, samples.size()}};
  Measure(boxes[0], samples);
  while (boxes.size() < kColors) {
    const auto widest = std::max_element(boxes.begin(), boxes.end(),
                                         [](const Box& a, const Box& b) { return Urgency(a) < Urgency(b); });
    if (widest->spread <= 0 || widest->last - widest->first < 2) break;
    Box upper = *widest;
    const std::size_t middle = (upper.first + upper.last) / 2;
    const auto at = [&samples](std::size_t i) { return samples.begin() + static_cast<std::ptrdiff_t>(i); };
    const int channel = upper.channel;
    std::nth_element(at(upper.first), at(middle), at(upper.last), [channel](const Color& a, const Color& b) {
      return Channel(a, channel) < Channel(b, channel);
    });
    widest->last = middle;
    upper.first = middle;
    Measure(*widest, samples);
    Measure(upper, samples);
    boxes.push_back(upper);
  }
  std::vector<Color> colors;
  for (const Box& box : boxes) {
    Color sum;
    for (std::size_t i = box.first; i < box.last; ++i) sum = sum + samples[i];
    colors.push_back(sum * (1.0F / static_cast<float>(box.last - box.first)));
  }
  return colors;
}

// Finds the nearest colour quickly: colours stand in the order of their green.
class Nearest {
 public:
  explicit Nearest(std::vector<Color> colors) : colors_(std::move(colors)) {
    std::sort(colors_.begin(), colors_.end(), [](const Color& a, const Color& b) { return a.g < b.g; });
  }

  const std::vector<Color>& colors() const { return colors_; }

  std::size_t of(const Color& color) const {
    const auto start = std::lower_bound(colors_.begin(), colors_.end(), color.g,
                                        [](const Color& c, float green) { return c.g < green; });
    const auto middle = static_cast<std::ptrdiff_t>(start - colors_.begin());
    std::size_t best = 0;
    float least = 1e9F;
    const auto look = [&](std::ptrdiff_t i) {
      const Color& candidate = colors_[static_cast<std::size_t>(i)];
      const float green = (candidate.g - color.g) * kWeight.g;
      if (green * green >= least) return false;
      const float distance = Distance(candidate, color);
      if (distance < least) {
        least = distance;
        best = static_cast<std::size_t>(i);
      }
      return true;
    };
    for (auto i = middle; i < static_cast<std::ptrdiff_t>(colors_.size()) && look(i);) ++i;
    for (auto i = middle - 1; i >= 0 && look(i);) --i;
    return best;
  }

 private:
  std::vector<Color> colors_;
};

std::vector<Color> MoveToMeans(std::vector<Color> colors, const std::vector<Color>& samples) {
  for (int round = 0; round < kMeanRounds; ++round) {
    const Nearest nearest(std::move(colors));
    colors = nearest.colors();
    std::vector<Color> sums(colors.size());
    std::vector<int> counts(colors.size());
    for (const Color& sample : samples) {
      const std::size_t i = nearest.of(sample);
      sums[i] = sums[i] + sample;
      ++counts[i];
    }
    for (std::size_t i = 0; i < colors.size(); ++i) {
      if (counts[i] > 0) colors[i] = sums[i] * (1.0F / static_cast<float>(counts[i]));
    }
  }
  return colors;
}

int Byte(float level) { return static_cast<int>(std::lround(Clamp01(level) * 255.0F)); }

// The colours as a file can hold them, each once.
std::vector<Color> AsBytes(const std::vector<Color>& colors) {
  std::vector<std::array<int, 3>> bytes;
  for (const Color& color : colors) bytes.push_back({Byte(color.r), Byte(color.g), Byte(color.b)});
  std::sort(bytes.begin(), bytes.end());
  bytes.erase(std::unique(bytes.begin(), bytes.end()), bytes.end());
  std::vector<Color> result;
  for (const auto& b : bytes) {
    result.push_back(Hex(static_cast<unsigned>(b[0] << 16 | b[1] << 8 | b[2])));
  }
  return result;
}

// What is handed on stays little, or a colour that the palette lacks would bleed far over an edge.
Color Little(const Color& difference) {
  const auto little = [](float level) { return std::clamp(level, -0.05F, 0.05F); };
  return {little(difference.r), little(difference.g), little(difference.b)};
}

std::vector<std::uint8_t> Dither(const Canvas& canvas, const Nearest& nearest, float diffusion) {
  const auto width = static_cast<std::size_t>(canvas.size.width);
  std::vector<std::uint8_t> indices;
  indices.reserve(canvas.pixels.size());
  std::vector<Color> here(width + 2);
  std::vector<Color> below(width + 2);
  for (int y = 0; y < canvas.size.height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      const Color wanted = canvas.at(static_cast<int>(x), y) + here[x + 1];
      const std::size_t index = nearest.of(wanted);
      indices.push_back(static_cast<std::uint8_t>(index));
      const Color missing = Little(wanted - nearest.colors()[index]) * diffusion;
      here[x + 2] = here[x + 2] + missing * (7.0F / 16.0F);
      below[x] = below[x] + missing * (3.0F / 16.0F);
      below[x + 1] = below[x + 1] + missing * (5.0F / 16.0F);
      below[x + 2] = below[x + 2] + missing * (1.0F / 16.0F);
    }
    here.swap(below);
    std::fill(below.begin(), below.end(), Color{});
  }
  return indices;
}

}  // namespace

Indexed ReduceColors(const Canvas& canvas, float diffusion) {
  std::vector<Color> samples;
  const std::size_t step = std::max<std::size_t>(canvas.pixels.size() / kMostSamples, 1);
  for (std::size_t i = 0; i < canvas.pixels.size(); i += step) samples.push_back(canvas.pixels[i]);
  const Nearest nearest(AsBytes(MoveToMeans(MedianCut(samples), samples)));
  Indexed result{canvas.size, {}, Dither(canvas, nearest, diffusion)};
  for (const Color& color : nearest.colors()) {
    for (const float level : {color.r, color.g, color.b}) result.colors += static_cast<char>(Byte(level));
  }
  return result;
}

}  // namespace pictures
