#include "base/gradient.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/color.h"

namespace base {
namespace {

TEST(Gradient, RunsFromTheColourAtTheTopToBlack) {
  const Bitmap gradient = DrawGradient({4, 768}, {255, 0, 0});
  EXPECT_EQ(gradient.at(0, 0), OpaquePixel(Rgb(255, 0, 0)));
  EXPECT_EQ(gradient.at(3, 767), OpaquePixel(kBlack));
  EXPECT_TRUE(gradient.isOpaque());
}

TEST(Gradient, WithoutColourIsBlackAllOver) {
  EXPECT_EQ(DrawGradient({7, 300}, {0, 0, 0}), Bitmap({7, 300}, OpaquePixel(kBlack)));
}

TEST(Gradient, StopsEachComponentAtZeroByItself) {
  const Bitmap gradient = DrawGradient({1, 256}, {100, 200, 10});
  EXPECT_EQ(gradient.at(0, 10), OpaquePixel(Rgb(90, 190, 0)));
  EXPECT_EQ(gradient.at(0, 50), OpaquePixel(Rgb(50, 150, 0)));
  EXPECT_EQ(gradient.at(0, 150), OpaquePixel(Rgb(0, 50, 0)));
  EXPECT_EQ(gradient.at(0, 200), OpaquePixel(kBlack));
}

TEST(Gradient, GivesEveryBandItsRowsWithoutAGap) {
  for (const int height : {256, 600, 768, 1080, 1440, 2160}) {
    EXPECT_EQ(GradientBandOfRow(0, height), 0);
    EXPECT_EQ(GradientBandOfRow(height - 1, height), 255);
    std::vector<int> rows(256, 0);
    for (int row = 0; row < height; ++row) ++rows[static_cast<std::size_t>(GradientBandOfRow(row, height))];
    for (const int count : rows) {
      EXPECT_GE(count, height / 256);
      EXPECT_LE(count, height / 256 + 1);
    }
  }
}

TEST(Gradient, OfALowScreenStillBeginsWithTheFullColour) {
  EXPECT_EQ(DrawGradient({1, 1}, {255, 255, 255}).at(0, 0), OpaquePixel(kWhite));
  EXPECT_EQ(GradientBandOfRow(1, 2), 128);
}

TEST(Gradient, CutsComponentsToTheirRange) {
  EXPECT_EQ(DrawGradient({1, 256}, {300, -2147483647 - 1, 0}).at(0, 1), OpaquePixel(Rgb(254, 0, 0)));
}

TEST(Gradient, RunsFromTheColourToBlackInBandsOfOneUnit) {
  const Bitmap drawn = DrawGradient({2, 256}, {255, 100, 0});
  for (int y = 0; y < 256; ++y) {
    const PackedColor expected = Rgb(255 - y, std::max(0, 100 - y), 0);
    ASSERT_EQ(drawn.at(0, y), OpaquePixel(expected)) << y;
    ASSERT_EQ(drawn.at(1, y), OpaquePixel(expected)) << y;
  }
}

TEST(Gradient, WithoutColourIsBlackFromTopToBottom) {
  const Bitmap drawn = DrawGradient({3, 97}, {0, 0, 0});
  for (int y = 0; y < 97; ++y) ASSERT_EQ(drawn.at(1, y), OpaquePixel(kBlack)) << y;
}

TEST(Gradient, AnyHeightStartsWithTheFullColour) {
  for (const int height : {1, 50, 94, 256, 700}) {
    EXPECT_EQ(DrawGradient({1, height}, {9, 8, 7}).at(0, 0), OpaquePixel(Rgb(9, 8, 7))) << height;
  }
  EXPECT_EQ(DrawGradient({1, 512}, {255, 0, 0}).at(0, 511), OpaquePixel(kBlack));
}

}  // namespace
}  // namespace base
