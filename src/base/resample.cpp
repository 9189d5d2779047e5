#include "base/resample.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "base/area_average.h"

namespace base {

namespace {

// Where a larger pixel lies between two smaller ones: `first` and the one after it, mixed by `weight` of 256.
struct Between {
  int first;
  std::uint32_t weight;
};

// Pixel centres are laid on pixel centres; beyond the outermost centres the border pixel goes on.
std::vector<Between> PlacesBetween(int source, int target) {
  std::vector<Between> places;
  places.reserve(static_cast<std::size_t>(target));
  for (std::int64_t i = 0; i < target; ++i) {
    const std::int64_t at = ((2 * i + 1) * source * 256 / target - 256) / 2;  // in 256ths of a source pixel
    const std::int64_t inside = std::clamp<std::int64_t>(at, 0, (source - 1) * std::int64_t{256});
    const auto first = static_cast<int>(std::min<std::int64_t>(inside / 256, std::max(source - 2, 0)));
    places.push_back({first, static_cast<std::uint32_t>(inside - first * std::int64_t{256})});
  }
  return places;
}

// One row of pixels spread out to a longer one; channels with 8 fraction bits.
void SpreadRow(std::vector<std::uint16_t>& spread, const Pixel* row, const std::vector<Between>& places) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(row);
  std::uint16_t* out = spread.data();
  for (const Between& place : places) {
    const std::uint8_t* left = bytes + static_cast<std::ptrdiff_t>(place.first) * 4;
    const std::uint8_t* right = place.weight == 0 ? left : left + 4;
    for (int c = 0; c < 4; ++c) {
      *out++ = static_cast<std::uint16_t>(left[c] * (256 - place.weight) + right[c] * place.weight);
    }
  }
}

void MixRows(std::uint8_t* out, const std::vector<std::uint16_t>& above,
             const std::vector<std::uint16_t>& below, std::uint32_t weight) {
  for (std::size_t i = 0; i < above.size(); ++i) {
    const std::uint32_t mixed = above[i] * (256 - weight) + below[i] * weight;
    out[i] = static_cast<std::uint8_t>((mixed + 0x8000) >> 16);
  }
}

Bitmap Enlarge(const Bitmap& source, PixelSize size) {
  Bitmap result(size);
  const std::vector<Between> columns = PlacesBetween(source.size().width, size.width);
  const std::vector<Between> rows = PlacesBetween(source.size().height, size.height);
  const std::size_t lanes = columns.size() * 4;
  std::vector<std::uint16_t> above(lanes);
  std::vector<std::uint16_t> below(lanes);
  int aboveRow = -1;
  int belowRow = -1;
  for (int y = 0; y < size.height; ++y) {
    const Between& place = rows[static_cast<std::size_t>(y)];
    const int next = std::min(place.first + 1, source.size().height - 1);
    if (aboveRow != place.first) {
      if (belowRow == place.first) {
        above.swap(below);
        belowRow = -1;
      } else {
        SpreadRow(above, source.row(place.first), columns);
      }
      aboveRow = place.first;
    }
    if (belowRow != next) SpreadRow(below, source.row(next), columns);
    belowRow = next;
    MixRows(reinterpret_cast<std::uint8_t*>(result.row(y)), above, below, place.weight);
  }
  return result;
}

Bitmap Shrink(const Bitmap& source, PixelSize size) {
  AreaAverage average(source.size(), size);
  average.add(source.row(0), source.size().height, source.size().width);
  return average.take();
}

}  // namespace

Bitmap Resample(const Bitmap& source, PixelSize size) {
  if (source.isEmpty() || size.isEmpty()) return Bitmap(size);
  if (source.size() == size) return source;
  const PixelSize smaller{std::min(source.size().width, size.width),
                          std::min(source.size().height, size.height)};
  Bitmap shrunk;
  const bool shrinks = smaller != source.size();
  if (shrinks) shrunk = Shrink(source, smaller);
  const Bitmap& base = shrinks ? shrunk : source;
  Bitmap result = smaller == size ? std::move(shrunk) : Enlarge(base, size);
  result.setOpaque(source.isOpaque());
  return result;
}

}  // namespace base
