#include "base/area_average.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace base {

namespace {

constexpr std::size_t kChannels = 4;
constexpr double kNarrowedUnit = 128.0;  // of a level in a wide column sum that was made narrow

// As many fraction bits (7 at most) as narrow sums over `rows` rows leave room for; below 0 when they are too
// narrow altogether. One unit is kept free for the rounding of a shared row.
int NarrowFractionBits(double rows) {
  int bits = 7;
  while (bits >= 0 && 255.0 * rows * static_cast<double>(1 << bits) + 1.0 > kGreatestColumnSum) --bits;
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

// A whole number nearest to 2^bits / divisor.
std::uint32_t Reciprocal(int bits, double divisor) {
  return static_cast<std::uint32_t>(static_cast<double>(std::uint64_t{1} << bits) / divisor + 0.5);
}

}  // namespace

// One pixel more than a row has, which stays zero: the one across the last border.
template <class Sum>
void AreaAverage::ColumnSums<Sum>::resize(std::size_t lanes) {
  current.resize(lanes + kChannels);
  next.resize(lanes + kChannels);
}

AreaAverage::AreaAverage(PixelSize source, PixelSize target)
    : source_(source), target_(target), columns_(source.width, target.width), result_(target) {
  assert(!target.isEmpty() && target.width <= source.width && target.height <= source.height);
  assert(source.width <= kLongestSide && source.height <= kLongestSide);
  const double rowsEach = static_cast<double>(source.height) / target.height;
  const double columnsEach = static_cast<double>(source.width) / target.width;
  const int narrowBits = NarrowFractionBits(rowsEach);
  narrow_ = narrowBits >= 0;
  fractionBits_ = narrow_ ? narrowBits : 8;
  const double level = narrow_ ? rowsEach * static_cast<double>(1 << fractionBits_) : kNarrowedUnit;
  scale_ = static_cast<float>(1.0 / (level * columnsEach));
  narrowing_ = narrow_ ? 1 : Reciprocal(31, rowsEach);

  const std::size_t lanes = static_cast<std::size_t>(source.width) * kChannels;
  narrowSums_.resize(lanes);
  if (!narrow_) wideSums_.resize(lanes);
}

void AreaAverage::add(const Pixel* rows, int count, std::ptrdiff_t stride) {
  for (int i = 0; i < count && !isComplete(); ++i) {
    const Pixel* row = rows + i * stride;
    if (source_ == target_) {
      std::copy_n(row, source_.width, result_.row(nextRow_));
    } else if (narrow_) {
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
  const std::int64_t end = (targetRow_ + std::int64_t{1}) * source_.height;  // in parts of a row
  const int wholeRows = static_cast<int>(end / target_.height);
  const auto rest = static_cast<int>(end % target_.height);
  if (nextRow_ < wholeRows) {
    AddWhole<Sum>(sums.current.data(), bytes, lanes, unit);
    if (nextRow_ + 1 < wholeRows || rest != 0) return;
    finishRow(sums.current);
    std::fill(sums.current.begin(), sums.current.end(), Sum{0});
  } else {
    const std::int64_t share = (std::int64_t{rest} * 256 << fractionBits_) / target_.height;
    AddShared<Sum>(sums.current.data(), sums.next.data(), bytes, lanes, unit,
                   static_cast<std::uint16_t>(share));
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
  AverageRow(reinterpret_cast<std::uint8_t*>(result_.row(targetRow_)), sums.data(), columns_, scale_);
  ++targetRow_;
}

Bitmap AreaAverage::take() {
  assert(isComplete());
  return std::move(result_);
}

}  // namespace base
