#include "base/area_average.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "base/resample.h"
#include "support/channels.h"
#include "support/noise.h"

namespace base {
namespace {

using support::Channel;
using support::Noise;

Bitmap NoisePicture(PixelSize size, bool opaque) {
  Noise noise;
  Bitmap picture(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const Pixel alpha = opaque ? 255 : noise.next() % 256;
      Pixel pixel = alpha << 24;
      for (int shift = 0; shift < 24; shift += 8) pixel |= noise.next() % (alpha + 1) << shift;
      picture.row(y)[x] = pixel;
    }
  }
  picture.setOpaque(opaque);
  return picture;
}

// The average over an area in floating point, each pixel weighed by how much of it lies inside.
double ExactAverage(const Bitmap& source, PixelSize target, int x, int y, int channel) {
  const double columns = static_cast<double>(source.size().width) / target.width;
  const double rows = static_cast<double>(source.size().height) / target.height;
  const auto inside = [](int at, double from, double to) {
    return std::max(0.0, std::min(at + 1.0, to) - std::max<double>(at, from));
  };
  double sum = 0;
  for (int sy = static_cast<int>(y * rows); sy < std::min<double>((y + 1) * rows, source.size().height);
       ++sy) {
    for (int sx = static_cast<int>(x * columns);
         sx < std::min<double>((x + 1) * columns, source.size().width); ++sx) {
      sum += Channel(source.at(sx, sy), channel) * inside(sx, x * columns, (x + 1) * columns) *
             inside(sy, y * rows, (y + 1) * rows);
    }
  }
  return sum / (columns * rows);
}

Bitmap Average(const Bitmap& source, PixelSize target, int bandRows) {
  AreaAverage average(source.size(), target);
  for (int top = 0; top < source.size().height; top += bandRows) {
    average.add(source.row(top), std::min(bandRows, source.size().height - top), source.size().width);
  }
  EXPECT_TRUE(average.isComplete());
  return average.take();
}

double LargestError(const Bitmap& source, const Bitmap& result) {
  double largest = 0;
  for (int y = 0; y < result.size().height; ++y) {
    for (int x = 0; x < result.size().width; ++x) {
      for (int channel = 0; channel < 4; ++channel) {
        const double exact = ExactAverage(source, result.size(), x, y, channel);
        largest = std::max(largest, std::abs(exact - Channel(result.at(x, y), channel)));
      }
    }
  }
  return largest;
}

struct Case {
  PixelSize source;
  PixelSize target;
};

class AreaAverageSizes : public testing::TestWithParam<Case> {};

TEST_P(AreaAverageSizes, IsTheExactAverageRoundedToTheNearestLevel) {
  for (const bool opaque : {true, false}) {
    const Bitmap source = NoisePicture(GetParam().source, opaque);
    const Bitmap result = Average(source, GetParam().target, 7);
    // 0.5 is rounding; the rest is what fixed point may add.
    EXPECT_LE(LargestError(source, result), 0.55);
  }
}

INSTANTIATE_TEST_SUITE_P(All, AreaAverageSizes,
                         testing::Values(Case{{400, 300}, {144, 108}}, Case{{101, 67}, {100, 66}},
                                         Case{{97, 89}, {13, 88}}, Case{{64, 64}, {32, 16}},
                                         Case{{1000, 3}, {1, 1}}, Case{{3, 1000}, {1, 1}},
                                         Case{{3, 1000}, {3, 3}}, Case{{5, 257}, {5, 1}},
                                         Case{{5, 256}, {5, 1}}, Case{{900, 700}, {7, 2}},
                                         Case{{1, 1}, {1, 1}}));

TEST(AreaAverage, TheSameSizeIsACopy) {
  const Bitmap source = NoisePicture({33, 21}, false);
  EXPECT_EQ(Average(source, {33, 21}, 4), source);
}

TEST(AreaAverage, BandsOfAnyHeightGiveTheSamePicture) {
  const Bitmap source = NoisePicture({57, 83}, false);
  const Bitmap whole = Average(source, {19, 31}, 83);
  for (const int rows : {1, 2, 5, 16, 82}) EXPECT_EQ(Average(source, {19, 31}, rows), whole);
}

TEST(AreaAverage, EqualPixelsStayWhatTheyAre) {
  for (const Pixel pixel : {0xFFFFFFFFU, 0xFF010203U, 0x01010001U, 0x00000000U, 0x80402010U}) {
    for (const PixelSize target : {PixelSize{7, 5}, PixelSize{1, 1}, PixelSize{150, 3}, PixelSize{60, 200}}) {
      EXPECT_EQ(Average(Bitmap({151, 601}, pixel), target, 16), Bitmap(target, pixel));
    }
  }
}

TEST(AreaAverage, TheLongestSidesStayWithinTheirSums) {
  const PixelSize longest{AreaAverage::kLongestSide, 1};
  EXPECT_EQ(Average(Bitmap(longest, 0xFFFFFFFFU), {1, 1}, 1), Bitmap({1, 1}, 0xFFFFFFFFU));
  const PixelSize highest{1, AreaAverage::kLongestSide};
  EXPECT_EQ(Average(Bitmap(highest, 0xFFFFFFFFU), {1, 1}, 999), Bitmap({1, 1}, 0xFFFFFFFFU));
}

TEST(AreaAverage, AColourNeverComesOutAboveItsAlpha) {
  const Bitmap result = Average(NoisePicture({301, 203}, false), {77, 51}, 16);
  for (int y = 0; y < 51; ++y) {
    for (int x = 0; x < 77; ++x) {
      const Pixel pixel = result.at(x, y);
      for (int channel = 0; channel < 3; ++channel) ASSERT_LE(Channel(pixel, channel), Channel(pixel, 3));
    }
  }
}

TEST(AreaAverage, RowsBeyondTheHeightAreIgnored) {
  const Bitmap source = NoisePicture({8, 8}, true);
  AreaAverage average({8, 4}, {4, 2});
  average.add(source.row(0), 8, 8);
  AreaAverage without({8, 4}, {4, 2});
  without.add(source.row(0), 4, 8);
  EXPECT_EQ(average.take(), without.take());
}

TEST(Resample, ShrinksByAreaAndKeepsTheOpaqueMark) {
  const Bitmap source = NoisePicture({90, 60}, true);
  const Bitmap result = Resample(source, {31, 17});
  EXPECT_LE(LargestError(source, result), 0.55);
  EXPECT_TRUE(result.isOpaque());
  EXPECT_FALSE(Resample(NoisePicture({90, 60}, false), {31, 17}).isOpaque());
}

TEST(Resample, EnlargesSmoothlyBetweenPixelCentres) {
  Bitmap source(PixelSize{2, 1});
  source.row(0)[0] = 0xFF000000U;
  source.row(0)[1] = 0xFF6464C8U;
  const Bitmap result = Resample(source, {4, 2});
  // Centres of the four lie at -1/4, 1/4, 3/4 and 5/4 of the way from one pixel to the other.
  const std::vector<Pixel> row = {0xFF000000U, 0xFF191932U, 0xFF4B4B96U, 0xFF6464C8U};
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 4; ++x) EXPECT_EQ(result.at(x, y), row[static_cast<std::size_t>(x)]);
  }
}

TEST(Resample, EnlargingStaysWithinOneOfTheExactMix) {
  const Bitmap source = NoisePicture({5, 4}, false);
  const PixelSize size{23, 19};
  const Bitmap result = Resample(source, size);
  const auto place = [](int at, int from, int to) {
    return std::clamp((at + 0.5) * from / to - 0.5, 0.0, from - 1.0);
  };
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double px = place(x, 5, 23);
      const double py = place(y, 4, 19);
      const int left = static_cast<int>(px);
      const int top = static_cast<int>(py);
      const int right = std::min(left + 1, 4);
      const int bottom = std::min(top + 1, 3);
      for (int c = 0; c < 4; ++c) {
        const double above = Channel(source.at(left, top), c) * (1 - (px - left)) +
                             Channel(source.at(right, top), c) * (px - left);
        const double below = Channel(source.at(left, bottom), c) * (1 - (px - left)) +
                             Channel(source.at(right, bottom), c) * (px - left);
        const double exact = above * (1 - (py - top)) + below * (py - top);
        ASSERT_NEAR(Channel(result.at(x, y), c), exact, 1.6) << x << "," << y;
      }
    }
  }
}

TEST(Resample, ShrinksOneAxisWhileItEnlargesTheOther) {
  Bitmap source(PixelSize{4, 1});
  for (int x = 0; x < 4; ++x) source.row(0)[x] = OpaquePixel(Rgb(40 * x, 0, 0));
  const Bitmap result = Resample(source, {2, 3});
  for (int y = 0; y < 3; ++y) {
    EXPECT_EQ(result.at(0, y), OpaquePixel(Rgb(20, 0, 0)));
    EXPECT_EQ(result.at(1, y), OpaquePixel(Rgb(100, 0, 0)));
  }
}

TEST(Resample, OnePixelFillsAnySize) {
  EXPECT_EQ(Resample(Bitmap({1, 1}, 0x80402010U), {9, 7}), Bitmap({9, 7}, 0x80402010U));
}

TEST(Resample, NothingDrawnAtASizeIsTransparent) {
  EXPECT_EQ(Resample(Bitmap(), {3, 2}), Bitmap({3, 2}));
  EXPECT_TRUE(Resample(Bitmap({3, 2}), {0, 5}).isEmpty());
}

}  // namespace
}  // namespace base
