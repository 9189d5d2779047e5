#include "base/blur.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "support/channels.h"
#include "support/noise.h"

namespace base {
namespace {

using support::Channel;

TEST(Blur, APlainColourStaysWhatItIs) {
  Bitmap picture({30, 20}, 0xFF3A7BD5);
  Blur(picture, 3);
  EXPECT_EQ(picture, Bitmap({30, 20}, 0xFF3A7BD5));
}

TEST(Blur, ASquareBecomesABellThatFallsAlikeOnAllSides) {
  Bitmap picture({41, 41}, 0xFF000000);
  for (int y = 12; y < 29; ++y) {
    for (int x = 12; x < 29; ++x) picture.row(y)[x] = 0xFFFFFFFF;
  }
  Blur(picture, 2);
  const auto level = [&](int x, int y) { return Channel(picture.at(x, y), 1); };
  for (int i = 0; i <= 20; ++i) {
    EXPECT_NEAR(level(20 + i, 20), level(20 - i, 20), 2);
    EXPECT_NEAR(level(20 + i, 20), level(20, 20 + i), 2);
    if (i > 0) {
      EXPECT_LE(level(20 + i, 20), level(20 + i - 1, 20));
    }
  }
  EXPECT_EQ(level(20, 20), 255);
  EXPECT_EQ(level(20 + 8 + 7, 20), 0) << "three times two pixels reach six";
  EXPECT_NEAR(level(20 + 8, 20) + level(20 + 9, 20), 255, 3) << "the edge is in the middle of its slope";
}

TEST(Blur, ItSpreadsLightAndLosesNone) {
  Bitmap picture({60, 60}, 0xFF000000);
  for (int y = 25; y < 35; ++y) {
    for (int x = 25; x < 35; ++x) picture.row(y)[x] = 0xFFF0F0F0;
  }
  Blur(picture, 3);
  long sum = 0;
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 60; ++x) sum += Channel(picture.at(x, y), 2);
  }
  EXPECT_NEAR(static_cast<double>(sum), 100 * 240.0, 100 * 240.0 / 50);
}

TEST(Blur, BeyondABorderTheBorderPixelGoesOn) {
  Bitmap picture({20, 1}, 0xFF000000);
  picture.row(0)[0] = 0xFFFFFFFF;
  Blur(picture, 1);
  // Once over, two of three pixels at the border are white; three times over, 18 of 27 with what came back.
  EXPECT_GT(Channel(picture.at(0, 0), 0), 120);
  EXPECT_GT(Channel(picture.at(0, 0), 0), Channel(picture.at(1, 0), 0));
  EXPECT_EQ(Channel(picture.at(4, 0), 0), 0);
}

TEST(Blur, ARadiusBeyondThePictureIsTaken) {
  Bitmap picture = support::OpaqueNoise({3, 2});
  Blur(picture, 10);
  int least = 255;
  int most = 0;
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 3; ++x) {
      least = std::min(least, Channel(picture.at(x, y), 0));
      most = std::max(most, Channel(picture.at(x, y), 0));
    }
  }
  EXPECT_LE(most - least, 12);
}

}  // namespace
}  // namespace base
