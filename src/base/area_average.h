// Shrinks a picture by averaging over area while its rows are still being decoded.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/average_row.h"
#include "base/bitmap.h"

namespace base {

// Takes the rows of a picture from the top down, as they come, and gives the picture at its smaller size.
// Holds the result and the sums of a row, never the picture itself. Sums are whole numbers: every channel is
// within 1 of the exact average, equal pixels stay what they are, and a colour never comes out above its
// alpha.
class AreaAverage {
 public:
  // No side of a source may be longer, so that a sum over a target pixel stays within 31 bits.
  static constexpr int kLongestSide = 65535;

  // Each target side is 1 up to the source's side (an equal side is copied).
  AreaAverage(PixelSize source, PixelSize target);

  // The next `count` rows of source-width premultiplied pixels, `stride` pixels from one row to the next.
  // Rows beyond the source's height are ignored.
  void add(const Pixel* rows, int count, std::ptrdiff_t stride);

  // True when every row of the source has been added.
  bool isComplete() const { return nextRow_ == source_.height; }

  // The picture. To be called once, when complete.
  Bitmap take();

 private:
  template <class Sum>
  struct ColumnSums {
    void resize(std::size_t lanes);
    std::vector<Sum> sums;      // of the rows that have been added since the last border
    std::vector<Sum> finished;  // of a whole target row
  };

  template <class Sum>
  int addRows(ColumnSums<Sum>& columns, const Pixel* first, int count, std::ptrdiff_t stride);
  void finishRow(const std::vector<std::uint16_t>& sums);
  void finishRow(const std::vector<std::uint32_t>& sums);

  PixelSize source_;
  PixelSize target_;
  RowPlan columns_;
  int fractionBits_;         // of a row's byte in the column sums
  float scale_;              // from the sum over a target pixel to a level
  std::uint32_t narrowing_;  // from a wide column sum to a narrow one
  int nextRow_ = 0;          // of the source
  int targetRow_ = 0;        // the row that the sums belong to
  bool narrow_;              // 15 bits are enough for a column's sum over the rows of a target pixel
  ColumnSums<std::uint16_t> narrowSums_;
  ColumnSums<std::uint32_t> wideSums_;
  Bitmap result_;
};

}  // namespace base
