#include "saver/caption.h"

#include <gtest/gtest.h>

#include <vector>

namespace saver {
namespace {

TEST(CaptionBand, IsMeasuredFromTheFirstRealCaption) {
  EXPECT_EQ(FirstRealCaption(std::vector<std::string>{"", " ", "Lake", "Hill"}), 2U);
  EXPECT_EQ(FirstRealCaption(std::vector<std::string>{"  "}), 0U);
}

TEST(CaptionBand, HasNoHeightWithoutARealCaption) {
  EXPECT_EQ(FirstRealCaption(std::vector<std::string>{"", " ", ""}), std::nullopt);
  EXPECT_EQ(FirstRealCaption({}), std::nullopt);
}

TEST(ScrollingCaption, MovesLeftByItsSpeed) { EXPECT_EQ(ScrolledCaptionLeft(15360, 2000, 90, 15360), 15270); }

TEST(ScrollingCaption, EntersAgainOnlyWhenItsRightEndHasLeftTheScreen) {
  EXPECT_EQ(ScrolledCaptionLeft(-1910, 2000, 90, 15360), -2000);  // the end touches the edge
  EXPECT_EQ(ScrolledCaptionLeft(-2000, 2000, 90, 15360), 15360);
}

TEST(ScrollingCaption, WiderThanTheScreenScrollsInFull) {
  float left = 15360;
  int ticks = 0;
  float last = left;
  do {
    last = left;
    left = ScrolledCaptionLeft(left, 40000, 90, 15360);
    ++ticks;
  } while (left < last);
  EXPECT_LE(last + 40000, 90);
  EXPECT_EQ(ticks, 616);  // the first step by which 55360 twips are passed
}

TEST(ScrollingCaption, WithoutSpeedStandsBeyondTheRightEdge) {
  EXPECT_EQ(ScrolledCaptionLeft(15360, 2000, 0, 15360), 15360);
}

TEST(ScrollingCaption, WithANegativeSpeedMovesRightForEver) {
  float left = 15360;
  for (int tick = 0; tick < 1000; ++tick) left = ScrolledCaptionLeft(left, 2000, -90, 15360);
  EXPECT_EQ(left, 15360 + 90 * 1000);
}

TEST(ScrollingCaption, MayMoveByFractionsOfATwip) {
  EXPECT_EQ(ScrolledCaptionLeft(100, 2000, 0.5, 15360), 99.5F);
}

}  // namespace
}  // namespace saver
