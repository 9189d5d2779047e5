#include "base/area_average.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <utility>

namespace base {

namespace {

constexpr std::size_t kChannels = 4;
constexpr int kLevelBits = 7;  // fraction bits of a level before it is rounded

// The four channels of one pixel, as one vector where the machine has them.
using Narrow = std::uint16_t __attribute__((vector_size(8)));
using Wide = std::uint32_t __attribute__((vector_size(16)));

Narrow Load(const std::uint16_t* channels) {
  Narrow pixel;
  std::memcpy(&pixel, channels, sizeof pixel);
  return pixel;
}

// As many fraction bits (8 at most) as 16-bit sums over `rows` rows leave room for; below 0 when they are
// too narrow altogether. One unit is kept free for the rounding of a shared row.
int NarrowFractionBits(double rows) {
  int bits = 8;
  while (bits >= 0 && 255.0 * rows * static_cast<double>(1 << bits) + 1.0 > 65535.0) --bits;
  return bits;
}

// The loops below stay in the width of a sum, so that the compiler can run them on whole vectors.

template <class Sum>
void AddWhole(Sum* __restrict sums, const std::uint8_t* __restrict bytes, std::size_t count, Sum unit) {
  for (std::size_t i = 0; i < count; ++i) sums[i] = static_cast<Sum>(sums[i] + bytes[i] * unit);
}

// A row that lies across a border: `share` (of 256 x unit) goes to the row above the border, the rest below.
template <class Sum>
void AddShared(Sum* __restrict above, Sum* __restrict below, const std::uint8_t* __restrict bytes,
               std::size_t count, Sum unit, std::uint16_t share) {
  for (std::size_t i = 0; i < count; ++i) {
    const auto high = static_cast<std::uint16_t>(bytes[i] << 8);
    const auto part = static_cast<std::uint16_t>((static_cast<std::uint32_t>(high) * share) >> 16);
    above[i] = static_cast<Sum>(above[i] + part);
    below[i] = static_cast<Sum>(bytes[i] * unit - part);
  }
}

// Sums up the pixels that lie wholly between two borders, and sets those across the borders aside.
void SumBetweenBorders(std::uint32_t* inner, std::uint16_t* border, const std::uint16_t* pixels,
                       const std::vector<int>& whole) {
  std::ptrdiff_t at = 0;
  for (const int end : whole) {
    Wide sum{};
    for (; at < end; ++at) sum += __builtin_convertvector(Load(pixels + at * 4), Wide);
    std::memcpy(inner, &sum, sizeof sum);
    std::memcpy(border, pixels + at * 4, sizeof(Narrow));
    ++at;
    inner += kChannels;
    border += kChannels;
  }
}

// The share of each border pixel that lies before the border.
void PartsBeforeBorders(std::uint16_t* __restrict parts, const std::uint16_t* __restrict border,
                        const std::uint16_t* __restrict shares, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    parts[i] = static_cast<std::uint16_t>((static_cast<std::uint32_t>(border[i]) * shares[i]) >> 16);
  }
}

// Joins what lies between the borders with both shares of the pixels across them, and scales it to levels.
void ToLevels(std::uint8_t* __restrict levels, const std::uint32_t* __restrict inner,
              const std::uint16_t* __restrict border, const std::uint16_t* __restrict parts,
              std::size_t count, std::uint32_t scale) {
  const std::uint16_t* const borderBefore = border - kChannels;
  const std::uint16_t* const partsBefore = parts - kChannels;
  for (std::size_t i = 0; i < count; ++i) {
    const auto rest = static_cast<std::uint16_t>(borderBefore[i] - partsBefore[i]);
    const std::uint32_t total = inner[i] + parts[i] + rest;
    const auto level = static_cast<std::uint32_t>((static_cast<std::uint64_t>(total) * scale) >> 32);
    levels[i] = static_cast<std::uint8_t>((level + (1U << (kLevelBits - 1))) >> kLevelBits);
  }
}

// A whole number nearest to 2^bits / divisor.
std::uint32_t Reciprocal(int bits, double divisor) {
  return static_cast<std::uint32_t>(static_cast<double>(std::uint64_t{1} << bits) / divisor + 0.5);
}

}  // namespace

AreaAverage::Ends::Ends(int source, int target) {
  whole.reserve(static_cast<std::size_t>(target));
  share.reserve(static_cast<std::size_t>(target));
  for (std::int64_t i = 1; i <= target; ++i) {
    const std::int64_t end = i * source;
    const std::int64_t rest = end % target;
    const std::int64_t part = (rest * 65536 + target / 2) / target;
    whole.push_back(static_cast<int>(end / target));
    share.push_back(static_cast<std::uint16_t>(std::min<std::int64_t>(part, 65535)));
  }
}

// One pixel more than a row has, which stays zero: the one across the last border.
template <class Sum>
void AreaAverage::ColumnSums<Sum>::resize(std::size_t lanes) {
  current.resize(lanes + kChannels);
  next.resize(lanes + kChannels);
}

AreaAverage::AreaAverage(PixelSize source, PixelSize target)
    : source_(source),
      target_(target),
      columns_(source.width, target.width),
      rows_(source.height, target.height),
      result_(target) {
  assert(!target.isEmpty() && target.width <= source.width && target.height <= source.height);
  assert(source.width <= kLongestSide && source.height <= kLongestSide);
  const double rowsEach = static_cast<double>(source.height) / target.height;
  const double columnsEach = static_cast<double>(source.width) / target.width;
  const int narrowBits = NarrowFractionBits(rowsEach);
  narrow_ = narrowBits >= 0;
  fractionBits_ = narrow_ ? narrowBits : 8;
  const double level = narrow_ ? rowsEach * static_cast<double>(1 << fractionBits_) : 256.0;
  scale_ = Reciprocal(32 + kLevelBits, level * columnsEach);
  narrowing_ = narrow_ ? 1 : Reciprocal(32, rowsEach);

  const std::size_t lanes = static_cast<std::size_t>(source.width) * kChannels;
  narrowSums_.resize(lanes);
  if (!narrow_) wideSums_.resize(lanes);
  for (const std::uint16_t share : columns_.share)
    columnShares_.insert(columnShares_.end(), kChannels, share);
  inner_.resize(columnShares_.size());
  border_.resize(columnShares_.size() + kChannels);
  parts_.resize(columnShares_.size() + kChannels);
}

void AreaAverage::add(const Pixel* rows, int count, std::ptrdiff_t stride) {
  for (int i = 0; i < count && !isComplete(); ++i) {
    const Pixel* row = rows + i * stride;
    if (narrow_) {
      addRow(narrowSums_, row);
    } else {
      addRow(wideSums_, row);
    }
    ++nextRow_;
  }
}

template <class Sum>
void AreaAverage::addRow(ColumnSums<Sum>& sums, const Pixel* row) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(row);
  const std::size_t lanes = sums.current.size() - kChannels;
  const auto unit = static_cast<Sum>(1 << fractionBits_);
  const auto at = static_cast<std::size_t>(targetRow_);
  if (nextRow_ < rows_.whole[at]) {
    AddWhole<Sum>(sums.current.data(), bytes, lanes, unit);
    if (nextRow_ + 1 < rows_.whole[at] || rows_.share[at] != 0) return;
    finishRow(sums.current);
    std::fill(sums.current.begin(), sums.current.end(), Sum{0});
  } else {
    const auto share = static_cast<std::uint16_t>(rows_.share[at] >> (8 - fractionBits_));
    AddShared<Sum>(sums.current.data(), sums.next.data(), bytes, lanes, unit, share);
    finishRow(sums.current);
    std::swap(sums.current, sums.next);
  }
}

void AreaAverage::finishRow(const std::vector<std::uint32_t>& sums) {
  for (std::size_t i = 0; i < sums.size(); ++i) {
    narrowSums_.current[i] =
        static_cast<std::uint16_t>((static_cast<std::uint64_t>(sums[i]) * narrowing_) >> 32);
  }
  finishRow(narrowSums_.current);
}

void AreaAverage::finishRow(const std::vector<std::uint16_t>& sums) {
  const std::size_t count = inner_.size();
  std::uint16_t* const border = border_.data() + kChannels;
  std::uint16_t* const parts = parts_.data() + kChannels;
  SumBetweenBorders(inner_.data(), border, sums.data(), columns_.whole);
  PartsBeforeBorders(parts, border, columnShares_.data(), count);
  ToLevels(reinterpret_cast<std::uint8_t*>(result_.row(targetRow_)), inner_.data(), border, parts, count,
           scale_);
  ++targetRow_;
}

Bitmap AreaAverage::take() {
  assert(isComplete());
  return std::move(result_);
}

}  // namespace base
