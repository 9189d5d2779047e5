// Averages a row of column sums into the pixels of a shorter row.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace base {

// Where the pixels of the shorter row end in the longer one, made once for all rows.
class RowPlan {
 public:
  // What a target pixel takes besides the whole pixels that every one takes: `share` (of 65536) of the pixel
  // across its right border, all (0xFFFF) or nothing of one more whole pixel.
  struct Part {
    std::uint16_t share;
    std::uint16_t another;
  };

  // `target` is 1 to `source`, in pixels.
  RowPlan(int source, int target);

  std::size_t count() const { return border_.size(); }

  // Whole pixels that every target pixel takes.
  int everyone() const { return everyone_; }

  // The pixel across the right border of target pixel i; past the last one it is one beyond the row.
  int border(std::size_t i) const { return border_[i]; }
  const Part& part(std::size_t i) const { return parts_[i]; }

 private:
  int everyone_;
  std::vector<int> border_;
  std::vector<Part> parts_;
};

// The greatest sum of a column's channel.
constexpr int kGreatestColumnSum = 32767;

// `sums` has four channels a pixel, one pixel more than the row, which is zero. A level is its sum over the
// target pixel times `scale`, rounded to the nearest; it is written as a byte.
void AverageRow(std::uint8_t* levels, const std::uint16_t* sums, const RowPlan& plan, float scale);

// The same without the vectors of the processor, for one that has none.
void AverageRowPlain(std::uint8_t* levels, const std::uint16_t* sums, const RowPlan& plan, float scale);

}  // namespace base
