#include "base/area_average.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <type_traits>
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

// The most rows that are added to the sums in one go: each saves a way of the sums through memory.
constexpr int kMostRowsAtOnce = 4;

// Bytes of up to so many rows of a picture, one below the other.
struct Rows {
  const std::uint8_t* first;
  std::ptrdiff_t stride;  // in bytes

  const std::uint8_t* row(int i) const { return first + i * stride; }
};

// The loops below stay in the width of a sum, so that the compiler can run them on whole vectors.

template <int kRows, class Sum>
Sum SumOf(const Rows& rows, std::size_t i) {
  Sum sum = 0;
  for (int r = 0; r < kRows; ++r) sum = static_cast<Sum>(sum + rows.row(r)[i]);
  return sum;
}

template <int kRows, class Sum>
void AddWhole(Sum* __restrict sums, Rows rows, std::size_t count, Sum unit) {
  for (std::size_t i = 0; i < count; ++i) {
    sums[i] = static_cast<Sum>(sums[i] + static_cast<Sum>(SumOf<kRows, Sum>(rows, i) * unit));
  }
}

// The last rows of a target row: so many whole ones, and one that lies across the border, of which `share`
// (of 256 x unit) goes to the row above the border and the rest below.
template <int kRows, class Sum>
void AddLast(Sum* __restrict finished, Sum* __restrict sums, Rows rows, std::size_t count, Sum unit,
             std::uint16_t share) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint8_t across = rows.row(kRows)[i];
    const auto high = static_cast<std::uint16_t>(across << 8);
    const auto part = static_cast<std::uint16_t>((static_cast<std::uint32_t>(high) * share) >> 16);
    const auto whole = static_cast<Sum>(SumOf<kRows, Sum>(rows, i) * unit);
    finished[i] = static_cast<Sum>(sums[i] + whole + part);
    sums[i] = static_cast<Sum>(static_cast<Sum>(across * unit) - part);
  }
}

// Calls `loop` with a whole number that is known when compiling.
template <class Loop>
void WithRows(int rows, Loop loop) {
  switch (rows) {
    case 0:
      return loop(std::integral_constant<int, 0>());
    case 1:
      return loop(std::integral_constant<int, 1>());
    case 2:
      return loop(std::integral_constant<int, 2>());
    case 3:
      return loop(std::integral_constant<int, 3>());
    default:
      return loop(std::integral_constant<int, kMostRowsAtOnce>());
  }
}

// A whole number nearest to 2^bits / divisor.
std::uint32_t Reciprocal(int bits, double divisor) {
  return static_cast<std::uint32_t>(std::llround(static_cast<double>(std::uint64_t{1} << bits) / divisor));
}

}  // namespace

// One pixel more than a row has, which stays zero: the one across the last border.
template <class Sum>
void AreaAverage::ColumnSums<Sum>::resize(std::size_t lanes) {
  sums.resize(lanes + kChannels);
  finished.resize(lanes + kChannels);
}

AreaAverage::AreaAverage(PixelSize source, PixelSize target)
    : source_(source),
      target_(target),
      columns_(source.width, target.width),
      result_(Bitmap::unfilled(target)) {
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
  const Pixel* const end = rows + std::min(count, source_.height - nextRow_) * stride;
  while (rows != end) {
    const auto left = static_cast<int>((end - rows) / stride);
    int taken = 1;
    if (source_ == target_) {
      std::copy_n(rows, source_.width, result_.row(nextRow_));
    } else if (narrow_) {
      taken = addRows(narrowSums_, rows, left, stride);
    } else {
      taken = addRows(wideSums_, rows, left, stride);
    }
    nextRow_ += taken;
    rows += taken * stride;
  }
}

// Adds as many of the rows as can be added in one go, and gives their number.
template <class Sum>
int AreaAverage::addRows(ColumnSums<Sum>& columns, const Pixel* first, int count, std::ptrdiff_t stride) {
  const Rows rows{reinterpret_cast<const std::uint8_t*>(first),
                  stride * static_cast<std::ptrdiff_t>(sizeof(Pixel))};
  const std::size_t lanes = columns.sums.size() - kChannels;
  const auto unit = static_cast<Sum>(1 << fractionBits_);
  Sum* const sums = columns.sums.data();
  Sum* const finished = columns.finished.data();
  const std::int64_t end = (targetRow_ + std::int64_t{1}) * source_.height;  // in parts of a row
  const int whole = static_cast<int>(end / target_.height) - nextRow_;  // that the target row still takes
  const auto rest = static_cast<int>(end % target_.height);
  if (rest != 0 && whole < kMostRowsAtOnce && whole < count) {
    const std::int64_t share = (std::int64_t{rest} * 256 << fractionBits_) / target_.height;
    WithRows(whole, [&](auto number) {
      AddLast<number()>(finished, sums, rows, lanes, unit, static_cast<std::uint16_t>(share));
    });
    finishRow(columns.finished);
    return whole + 1;
  }
  const int taken = std::min({whole, count, kMostRowsAtOnce});
  WithRows(taken, [&](auto number) { AddWhole<number()>(sums, rows, lanes, unit); });
  if (taken == whole && rest == 0) {
    finishRow(columns.sums);
    std::fill(columns.sums.begin(), columns.sums.end(), Sum{0});
  }
  return taken;
}

void AreaAverage::finishRow(const std::vector<std::uint32_t>& sums) {
  for (std::size_t i = 0; i < sums.size(); ++i) {
    narrowSums_.finished[i] =
        static_cast<std::uint16_t>((static_cast<std::uint64_t>(sums[i]) * narrowing_) >> 32);
  }
  finishRow(narrowSums_.finished);
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
