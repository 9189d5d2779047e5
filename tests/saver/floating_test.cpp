#include "saver/floating.h"

#include <gtest/gtest.h>

#include <map>

#include "base/errors.h"

namespace saver {
namespace {

constexpr FloatArea kArea{15360, 11520, 300};  // 1024 x 768 pixels

FloatingBox Moved(FloatingBox box) {
  MoveFloatingBox(box, kArea);
  return box;
}

TEST(FloatInterval, FollowsTheTableOfSpeeds) {
  EXPECT_EQ(FloatIntervalMs(0), 150);
  EXPECT_EQ(FloatIntervalMs(1), 125);
  EXPECT_EQ(FloatIntervalMs(2), 100);
  EXPECT_EQ(FloatIntervalMs(3), 75);
  EXPECT_EQ(FloatIntervalMs(4), 25);
  EXPECT_EQ(FloatIntervalMs(5), 10);
}

TEST(FloatInterval, IsLeftAloneByAnyOtherSpeed) {
  for (const double speed : {-1.0, 6.0, 2.5, 1e9}) EXPECT_EQ(FloatIntervalMs(speed), std::nullopt);
}

TEST(FloatDirection, IsOnePixelOfACoarseOrAFineScreen) {
  base::Random random;
  EXPECT_EQ(std::abs(PickFloatDirection(1500, 100, 0, random).x), 15);
  EXPECT_EQ(std::abs(PickFloatDirection(1400, 100, 0, random).y), 15);
  EXPECT_EQ(std::abs(PickFloatDirection(1399, 100, 0, random).x), 12);
  EXPECT_EQ(std::abs(PickFloatDirection(1200, 100, 0, random).y), 12);
  EXPECT_EQ(std::abs(PickFloatDirection(800, 100, 0, random).x), 12);
}

TEST(FloatDirection, OfABoxWithoutInnerWidthIsAnError) {
  base::Random random;
  EXPECT_THROW(PickFloatDirection(1500, 0, 0, random), base::Overflow);
}

TEST(FloatDirection, IsAnyOfTheFourDiagonals) {
  base::Random random;
  std::map<std::pair<int, int>, int> picked;
  for (int run = 0; run < 4000; ++run) {
    const FloatStep step = PickFloatDirection(1500, 100, static_cast<float>(run), random);
    ++picked[{step.x, step.y}];
  }
  ASSERT_EQ(picked.size(), 4U);
  for (const auto& [direction, times] : picked) {
    EXPECT_GT(times, 850);
    EXPECT_LT(times, 1150);
  }
}

TEST(FloatDirection, DrawsTheVerticalStepFirst) {
  base::Random random;
  base::Random same;
  same.reseed(4711);
  const bool up = same.next() >= 0.5F;
  const bool left = same.next() >= 0.5F;
  const FloatStep step = PickFloatDirection(1500, 100, 4711, random);
  EXPECT_EQ(step.y < 0, up);
  EXPECT_EQ(step.x < 0, left);
}

TEST(Floating, MovesByItsStep) {
  const FloatingBox box = Moved({1500, 1500, 3000, 3000, {15, -15}});
  EXPECT_EQ(box.left, 1515);
  EXPECT_EQ(box.top, 1485);
  EXPECT_EQ(box.step, (FloatStep{15, -15}));
}

TEST(Floating, DoesNotBounceWhereItOnlyTouches) {
  EXPECT_EQ(Moved({0, 1500, 3000, 3000, {-15, -15}}).step.x, -15);
  EXPECT_EQ(Moved({12360, 1500, 3000, 3000, {15, -15}}).step.x, 15);
  EXPECT_EQ(Moved({1500, 300, 3000, 3000, {15, -15}}).step.y, -15);
  EXPECT_EQ(Moved({1500, 8520, 3000, 3000, {15, 15}}).step.y, 15);
}

TEST(Floating, BouncesByThePositionBeforeTheMove) {
  FloatingBox box{0, 1500, 3000, 3000, {-15, -15}};
  box = Moved(box);
  EXPECT_EQ(box.left, -15);
  box = Moved(box);
  EXPECT_EQ(box.left, 0);
  EXPECT_EQ(box.step.x, 15);
  box = {12375, 1500, 3000, 3000, {15, -15}};
  box = Moved(box);
  EXPECT_EQ(box.left, 12360);
  EXPECT_EQ(box.step.x, -15);
}

TEST(Floating, BouncesOffTheCaptionBandAndTheBottom) {
  EXPECT_EQ(Moved({1500, 285, 3000, 3000, {15, -15}}).step.y, 15);
  EXPECT_EQ(Moved({1500, 8535, 3000, 3000, {15, 15}}).step.y, -15);
}

TEST(Floating, WithoutACaptionBouncesOffTheVeryTop) {
  FloatingBox box{1500, 0, 3000, 3000, {15, -15}};
  const FloatArea bare{15360, 11520, 0};
  MoveFloatingBox(box, bare);
  EXPECT_EQ(box.top, -15);
  MoveFloatingBox(box, bare);
  EXPECT_EQ(box.top, 0);
  EXPECT_EQ(box.step.y, 15);
}

TEST(Floating, FindsItsWayOutOfTheCaptionBandFromAnyDepth) {
  FloatingBox box{1500, -600, 3000, 3000, {15, -15}};
  for (int tick = 0; tick < 60; ++tick) box = Moved(box);
  EXPECT_EQ(box.top, 300);
  EXPECT_EQ(box.step.y, 15);
}

TEST(Floating, ComesBackFromFarBeyondTheScreen) {
  FloatingBox box{16000, 1500, 3000, 3000, {15, 15}};
  box = Moved(box);
  EXPECT_EQ(box.left, 15985);
  box = Moved(box);
  EXPECT_EQ(box.left, 15970);
}

TEST(Floating, OfAPictureLargerThanTheScreenTremblesAlongThatAxis) {
  FloatingBox box{-600, 1500, 17000, 3000, {15, 15}};
  for (int tick = 0; tick < 100; ++tick) {
    const FloatingBox before = box;
    box = Moved(box);
    EXPECT_EQ(box.step.x, -before.step.x);
  }
  EXPECT_EQ(box.left, -600);
  EXPECT_EQ(box.top, 3000);  // it goes on along the other axis
}

TEST(Floating, OfAPictureJustAsWideAsTheScreenBouncesOneStepBeyondIt) {
  FloatingBox box{0, 1500, 15360, 3000, {15, 15}};
  std::vector<float> lefts;
  for (int tick = 0; tick < 6; ++tick) {
    box = Moved(box);
    lefts.push_back(box.left);
  }
  EXPECT_EQ(lefts, (std::vector<float>{15, 0, -15, 0, 15, 0}));
}

TEST(Floating, NeverLeavesTheScreenByMoreThanOneStepInALongRun) {
  FloatingBox box{1507, 2003, 3000, 2000, {15, 15}};
  for (int tick = 0; tick < 100'000; ++tick) {
    box = Moved(box);
    ASSERT_TRUE(box.left >= -15 && box.left + box.width <= 15375 && box.top >= 285 &&
                box.top + box.height <= 11535);
  }
}

}  // namespace
}  // namespace saver
