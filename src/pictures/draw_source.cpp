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

std::optional<base::Bitmap> Shrink(os::PictureSource& source, int reduction, base::PixelSize target) {
  const base::PixelSize size = source.reducedSize(reduction);
  if (!HoldsWhole(size, target)) return std::nullopt;
  base::AreaAverage average(size, target);
  const int bandRows = std::min(std::max(kBandPixels / size.width, kLeastBandRows), size.height);
  std::vector<base::Pixel> band(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(bandRows));
  bool opaque = true;
  for (int top = 0; top < size.height; top += bandRows) {
    const int rows = std::min(bandRows, size.height - top);
    if (!source.readRows(reduction, top, rows, band.data())) return std::nullopt;
    const std::size_t count = static_cast<std::size_t>(size.width) * static_cast<std::size_t>(rows);
    if (source.hasAlpha()) {
      opaque = base::Premultiply(band.data(), count) && opaque;
    } else {
      base::MakeOpaque(band.data(), count);
    }
    average.add(band.data(), rows, size.width);
  }
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

}  // namespace pictures
