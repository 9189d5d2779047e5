#include "pictures/draw_source.h"

#include <algorithm>
#include <vector>

#include "base/area_average.h"
#include "base/bitmap.h"
#include "base/resample.h"

namespace pictures {

namespace {

constexpr int kBandPixels = 1 << 16;  // about what stays in the processor's cache
constexpr int kLeastBandRows = 16;    // a row of blocks of a JPEG file

bool HoldsWhole(base::PixelSize outer, base::PixelSize inner) {
  return outer.width >= inner.width && outer.height >= inner.height;
}

int BestReduction(const os::PictureSource& source, base::PixelSize wanted) {
  int best = 1;
  for (const int reduction : source.reductions()) {
    if (HoldsWhole(source.reducedSize(reduction), wanted)) best = std::max(best, reduction);
  }
  return best;
}

// Gives premultiplied alpha to rows of a source; true when every pixel is opaque.
bool FinishPixels(const os::PictureSource& source, base::Pixel* pixels, std::size_t count) {
  if (source.hasAlpha()) return base::Premultiply(pixels, count);
  base::MakeOpaque(pixels, count);
  return true;
}

// Reads rows `top` to `bottom - 1` of a reduced source band by band, and gives each to
// use(band, its first row, its row count). False when one cannot be decoded.
template <typename Use>
bool ReadInBands(os::PictureSource& source, int reduction, int top, int bottom, const Use& use) {
  const int width = source.reducedSize(reduction).width;
  const int bandRows = std::min(std::max(kBandPixels / width, kLeastBandRows), bottom - top);
  std::vector<base::Pixel> band(static_cast<std::size_t>(width) * static_cast<std::size_t>(bandRows));
  for (int row = top; row < bottom; row += bandRows) {
    const int rows = std::min(bandRows, bottom - row);
    if (!source.readRows(reduction, row, rows, band.data())) return false;
    use(band.data(), row, rows);
  }
  return true;
}

std::optional<base::Bitmap> Shrink(os::PictureSource& source, int reduction, base::PixelSize target) {
  const base::PixelSize size = source.reducedSize(reduction);
  if (!HoldsWhole(size, target)) return std::nullopt;
  base::AreaAverage average(size, target);
  bool opaque = true;
  const auto add = [&](base::Pixel* band, int, int rows) {
    const std::size_t count = static_cast<std::size_t>(size.width) * static_cast<std::size_t>(rows);
    opaque = FinishPixels(source, band, count) && opaque;
    average.add(band, rows, size.width);
  };
  if (!ReadInBands(source, reduction, 0, size.height, add)) return std::nullopt;
  base::Bitmap picture = average.take();
  picture.setOpaque(opaque);
  return picture;
}

}  // namespace

std::optional<base::Bitmap> DrawSource(os::PictureSource& source, base::PixelSize target) {
  const base::PixelSize smaller{std::min(source.size().width, target.width),
                                std::min(source.size().height, target.height)};
  const int reduction = BestReduction(source, smaller);
  std::optional<base::Bitmap> picture = Shrink(source, reduction, smaller);
  if (!picture && reduction != 1) picture = Shrink(source, 1, smaller);  // a reduction is a mere speed-up
  if (!picture || smaller == target) return picture;
  return base::Resample(*picture, target);
}

std::optional<base::Bitmap> CutSource(os::PictureSource& source, const base::PixelRect& part) {
  base::Bitmap cut = base::Bitmap::unfilled(part.size());
  bool opaque = true;
  const auto copy = [&](const base::Pixel* band, int top, int rows) {
    for (int y = 0; y < rows; ++y, band += source.size().width) {
      base::Pixel* row = cut.row(top - part.top + y);
      std::copy_n(band + part.left, part.width, row);
      opaque = FinishPixels(source, row, static_cast<std::size_t>(part.width)) && opaque;
    }
  };
  if (!ReadInBands(source, 1, part.top, part.bottom(), copy)) return std::nullopt;
  cut.setOpaque(opaque);
  return cut;
}

}  // namespace pictures
