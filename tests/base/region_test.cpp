#include "base/region.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "base/bitmap.h"

namespace base {
namespace {

TEST(Region, NeighboursWithAWholeEdgeInCommonBecomeOne) {
  Region region;
  region.add({0, 0, 4, 8});
  region.add({4, 0, 2, 8});
  EXPECT_EQ(region.rects(), (std::vector<PixelRect>{{0, 0, 6, 8}}));
  region.add({0, 8, 6, 1});
  EXPECT_EQ(region.rects(), (std::vector<PixelRect>{{0, 0, 6, 9}}));
}

TEST(Region, ARectangleThatFillsTheGapJoinsBothSides) {
  Region region;
  region.add({0, 0, 4, 8});
  region.add({6, 0, 4, 8});
  EXPECT_EQ(region.rects().size(), 2U);
  region.add({4, 0, 2, 8});
  EXPECT_EQ(region.rects(), (std::vector<PixelRect>{{0, 0, 10, 8}}));
}

TEST(Region, TheFrameAroundARectangleMakesALargerOneInAnyOrder) {
  Region region;
  region.add({2, 2, 4, 4});
  for (const PixelRect& part : {PixelRect{1, 1, 6, 1}, {1, 2, 1, 4}, {6, 2, 1, 4}, {1, 6, 6, 1}})
    region.add(part);
  EXPECT_EQ(region.rects(), (std::vector<PixelRect>{{1, 1, 6, 6}}));
}

TEST(Region, NothingIsAddedByAnEmptyRectangleOrByOneInsideAnother) {
  Region region;
  region.add({0, 0, 0, 5});
  EXPECT_TRUE(region.isEmpty());
  EXPECT_TRUE(region.largest().isEmpty());
  region.add({0, 0, 9, 9});
  region.add({3, 3, 2, 2});
  EXPECT_EQ(region.largest(), (PixelRect{0, 0, 9, 9}));
  EXPECT_EQ(region.rects().size(), 1U);
}

TEST(Region, CoversExactlyThePixelsOfEverythingAdded) {
  std::mt19937 random(7);
  const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  for (int round = 0; round < 300; ++round) {
    Region region;
    Bitmap added({16, 12});
    for (int i = 0; i < 12; ++i) {
      const PixelRect rect{below(10), below(8), below(6), below(5)};
      region.add(rect);
      FillRect(added.view(), rect, 1);
    }
    Bitmap covered({16, 12});
    for (const PixelRect& rect : region.rects()) FillRect(covered.view(), rect, 1);
    ASSERT_EQ(added, covered) << "round " << round;
  }
}

}  // namespace
}  // namespace base
