#include "saver/placement.h"

#include <gtest/gtest.h>

namespace saver {
namespace {

TEST(CenteredPlacement, CutsTheHalvesTowardZero) {
  EXPECT_EQ(Centered(15360, 11520, 7360, 3520), (Placement{4000, 4000}));
  EXPECT_EQ(Centered(15360, 11520, 7361, 3523), (Placement{3999, 3998}));
}

TEST(CenteredPlacement, OfAPictureLargerThanTheScreenIsNegative) {
  EXPECT_EQ(Centered(15360, 11520, 15363, 13501), (Placement{-1, -990}));
}

TEST(CenteredCaption, CutsTheHalfOfTheRoundedDifferenceTowardZero) {
  EXPECT_EQ(CenteredEdge(15360, 3360), 6000);
  EXPECT_EQ(CenteredEdge(15360, 3361), 5999);     // 11999 / 2
  EXPECT_EQ(CenteredEdge(15360, 3361.5F), 5999);  // 11998.5 is 11998
  EXPECT_EQ(CenteredEdge(15360, 3360.5F), 6000);  // 11999.5 is 12000
  EXPECT_EQ(CenteredEdge(15360, 20361), -2500);   // -5001 / 2
}

TEST(PulledBackPlacement, StaysInsideTheScreen) {
  EXPECT_EQ(PulledBack({100, 200}, 15360, 11520, 3000, 3000), (Placement{100, 200}));
}

TEST(PulledBackPlacement, ComesBackFromTheRightAndTheBottom) {
  EXPECT_EQ(PulledBack({14000, 9000}, 15360, 11520, 3000, 3000), (Placement{12360, 8520}));
  EXPECT_EQ(PulledBack({12360, 8520}, 15360, 11520, 3000, 3000), (Placement{12360, 8520}));
}

TEST(PulledBackPlacement, ComesBackFromASingleTwipBeyondTheEdge) {
  EXPECT_EQ(PulledBack({12361, 8521}, 15360, 11520, 3000, 3000), (Placement{12360, 8520}));
}

TEST(PulledBackPlacement, LeavesANegativePositionAsItIs) {
  EXPECT_EQ(PulledBack({-100, -200}, 15360, 11520, 3000, 3000), (Placement{-100, -200}));
}

TEST(PulledBackPlacement, OfALargerPictureLiesBeyondTheTopLeftCorner) {
  EXPECT_EQ(PulledBack({0, 0}, 15360, 11520, 16000, 12000), (Placement{-640, -480}));
}

}  // namespace
}  // namespace saver
