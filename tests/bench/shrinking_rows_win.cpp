// Averaging over area beside the system's own stretching.
#include <windows.h>

#include <cmath>
#include <cstdlib>

#include "base/area_average.h"
#include "bench/bench_stage_win.h"
#include "bench/bench_table.h"
#include "bench/rows.h"
#include "os/dib_win.h"

namespace bench {

namespace {

constexpr base::PixelSize kWhole{4000, 3000};
constexpr base::PixelSize kSmall{1440, 1080};

base::Bitmap Averaged(const base::Bitmap& picture) {
  base::AreaAverage average(picture.size(), kSmall);
  average.add(picture.row(0), picture.size().height, picture.size().width);
  return average.take();
}

// The exact average of one channel over the area of a small pixel.
class ExactAverage {
 public:
  explicit ExactAverage(const base::Bitmap& picture) : picture_(picture) {}

  double at(int x, int y, int shift) const {
    const double columns = static_cast<double>(picture_.size().width) / kSmall.width;
    const double rows = static_cast<double>(picture_.size().height) / kSmall.height;
    double sum = 0;
    for (int v = static_cast<int>(y * rows); v < std::min<int>(Up((y + 1) * rows), picture_.size().height);
         ++v) {
      for (int u = static_cast<int>(x * columns);
           u < std::min<int>(Up((x + 1) * columns), picture_.size().width); ++u) {
        sum += Part(u, x * columns, (x + 1) * columns) * Part(v, y * rows, (y + 1) * rows) *
               static_cast<double>(picture_.at(u, v) >> shift & 0xFF);
      }
    }
    return sum / (columns * rows);
  }

 private:
  static int Up(double value) { return static_cast<int>(std::ceil(value)); }

  // How much of pixel i lies from `from` to `to`.
  static double Part(int i, double from, double to) {
    return std::max(0.0, std::min<double>(i + 1, to) - std::max<double>(i, from));
  }

  const base::Bitmap& picture_;
};

// Root of the mean square of what a shrunk picture's levels are off, over every 7th pixel.
template <typename PixelAt>
double ErrorOf(const ExactAverage& exact, PixelAt pixelAt) {
  double squares = 0;
  int count = 0;
  for (int y = 0; y < kSmall.height; y += 7) {
    for (int x = 0; x < kSmall.width; x += 7) {
      for (int shift = 0; shift < 24; shift += 8) {
        const double off = static_cast<double>(pixelAt(x, y) >> shift & 0xFF) - exact.at(x, y, shift);
        squares += off * off;
        ++count;
      }
    }
  }
  return std::sqrt(squares / count);
}

}  // namespace

void BenchShrinking() {
  const base::Bitmap picture = PhotoLike(kWhole);
  const os::Dib whole(kWhole);
  base::CopyRect(whole.view(), {0, 0}, picture, base::PixelRect::ofSize(kWhole));
  const os::Dib stretched(kSmall);
  SetStretchBltMode(stretched.dc(), HALFTONE);
  base::Bitmap averaged;
  PrintRow("shrink 4000 x 3000 to 1440 x 1080 by area", "StretchBlt with HALFTONE",
           TimeRatio([&] { averaged = Averaged(picture); },
                     [&] {
                       StretchBlt(stretched.dc(), 0, 0, kSmall.width, kSmall.height, whole.dc(), 0, 0,
                                  kWhole.width, kWhole.height, SRCCOPY);
                       GdiFlush();
                     }),
           "<= 0.5 times");
  const ExactAverage exact(picture);
  const base::BitmapView view = stretched.view();
  const double ours = ErrorOf(exact, [&](int x, int y) { return averaged.at(x, y); });
  const double theirs = ErrorOf(exact, [&](int x, int y) { return view.row(y)[x]; });
  PrintRow("its error against the exact average", "the error of StretchBlt", ours / theirs, "< 1 time");
}

}  // namespace bench
