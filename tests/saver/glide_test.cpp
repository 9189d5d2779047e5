#include "saver/glide.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace saver {
namespace {

using base::Frame;
using base::PixelSize;

constexpr PixelSize kScreen{1920, 1080};
constexpr double kFrameMs = 1000.0 / 60;

// Where a point of the place shows the picture, in parts of its shown size.
struct Point {
  double x;
  double y;
};

// Where on the place a point of the picture (in its pixels) is seen.
Point SeenAt(const Frame& frame, PixelSize shown, Point inPicture) {
  return {(inPicture.x - frame.left) / frame.width * shown.width,
          (inPicture.y - frame.top) / frame.height * shown.height};
}

TEST(PanZoom, TakesOneToThirtyPercent) {
  EXPECT_EQ(ParsePanZoom("8"), 8);
  EXPECT_EQ(ParsePanZoom("1"), 1);
  EXPECT_EQ(ParsePanZoom("30"), 30);
  for (const char* text : {"", "0", "31", "-8", "8 ", "8.5", "on", "99999999999"}) {
    EXPECT_EQ(ParsePanZoom(text), 0) << text;
  }
}

TEST(Glide, GoesFromTheWholePictureToAPartInItsOwnPixelsOrBack) {
  for (int turn = 0; turn < 16; ++turn) {
    const Glide glide(kScreen, 8, 10'000, turn);
    EXPECT_EQ(glide.drawnSize(), (PixelSize{2073, 1166}));
    const Frame first = glide.frameAt(0);
    const Frame last = glide.frameAt(10'000);
    const Frame& far = first.width > last.width ? first : last;
    const Frame& near = first.width > last.width ? last : first;
    EXPECT_EQ(far, (Frame{0, 0, 2073, 1166}));
    EXPECT_DOUBLE_EQ(near.width, 1920);
    EXPECT_DOUBLE_EQ(near.height, 1080);
  }
}

TEST(Glide, NoFrameShowsAnythingOutsideThePicture) {
  for (int turn = 0; turn < 16; ++turn) {
    for (const int percent : {1, 8, 30}) {
      const Glide glide(kScreen, percent, 6000, turn);
      for (double ms = -100; ms < 6200; ms += 7.3) {
        const Frame frame = glide.frameAt(ms);
        ASSERT_GE(frame.left, 0);
        ASSERT_GE(frame.top, 0);
        ASSERT_LE(frame.left + frame.width, glide.drawnSize().width + 1e-9);
        ASSERT_LE(frame.top + frame.height, glide.drawnSize().height + 1e-9);
        ASSERT_GE(frame.width, 1920 - 1e-9);
      }
    }
  }
}

TEST(Glide, NoPointOfThePictureMovesFartherThanAPixelAFrame) {
  for (const int durationMs : {300, 1000, 3000, 10'000, 60'000}) {
    for (const int percent : {1, 8, 30}) {
      for (int turn = 0; turn < 8; ++turn) {
        const Glide glide(kScreen, percent, durationMs, turn);
        for (double ms = 0; ms < durationMs; ms += kFrameMs) {
          const Frame now = glide.frameAt(ms);
          const Frame next = glide.frameAt(ms + kFrameMs);
          for (const Point corner : {Point{0, 0}, Point{1, 0}, Point{0, 1}, Point{1, 1}}) {
            const Point inPicture{now.left + corner.x * now.width, now.top + corner.y * now.height};
            const Point was = SeenAt(now, kScreen, inPicture);
            const Point is = SeenAt(next, kScreen, inPicture);
            ASSERT_LE(std::hypot(is.x - was.x, is.y - was.y), 1.0)
                << percent << " percent, " << durationMs << " ms, turn " << turn << ", at " << ms;
          }
        }
      }
    }
  }
}

TEST(Glide, AWantedSizeIsReachedWhereThereIsTime) {
  EXPECT_EQ(Glide(kScreen, 30, 60'000, 0).drawnSize(), (PixelSize{2496, 1404}));
  EXPECT_LT(Glide(kScreen, 30, 3000, 0).drawnSize().width, 1920 * 108 / 100);
  EXPECT_GT(Glide(kScreen, 30, 3000, 0).drawnSize().width, 1920 * 106 / 100);
}

TEST(Glide, WithoutTimeOrPercentItStandsStill) {
  EXPECT_TRUE(Glide(kScreen, 8, 0, 3).standsStill());
  EXPECT_TRUE(Glide(kScreen, 0, 10'000, 3).standsStill());
  EXPECT_FALSE(Glide(kScreen, 8, 10'000, 3).standsStill());
  const Frame whole{0, 0, 1920, 1080};
  EXPECT_EQ(Glide(kScreen, 8, 0, 3).frameAt(5000), whole);
}

TEST(Glide, BeginsAndEndsSoftlyAndMovesEvenlyBetween) {
  EXPECT_DOUBLE_EQ(SoftProgress(0), 0);
  EXPECT_DOUBLE_EQ(SoftProgress(0.5), 0.5);
  EXPECT_DOUBLE_EQ(SoftProgress(1), 1);
  const double evenSpeed = (SoftProgress(0.6) - SoftProgress(0.5)) / 0.1;
  for (double share = 0; share < 0.999; share += 0.001) {
    const double speed = (SoftProgress(share + 0.001) - SoftProgress(share)) / 0.001;
    EXPECT_GT(speed, 0);
    EXPECT_LE(speed, evenSpeed * 1.0001);
    const double before = share == 0 ? 0 : (SoftProgress(share) - SoftProgress(share - 0.001)) / 0.001;
    EXPECT_LE(std::abs(speed - before), evenSpeed * 0.0101) << "no jerk at " << share;
  }
}

TEST(Glide, ThePathIsAFunctionOfTimeAlone) {
  const Glide glide(kScreen, 8, 10'000, 5);
  Glide other(kScreen, 8, 10'000, 5);
  for (int ms = 0; ms < 10'000; ms += 3) other.frameAt(ms);
  for (const double ms : {0.0, 33.3, 1000.0, 5000.0, 9999.0, 12'000.0}) {
    EXPECT_EQ(glide.frameAt(ms), other.frameAt(ms));
  }
  EXPECT_EQ(glide.frameAt(12'000), glide.frameAt(10'000));
  EXPECT_EQ(glide.frameAt(-1), glide.frameAt(0));
}

TEST(Glide, TurnsThatFollowEachOtherDiffer) {
  const auto nearPlace = [](int turn) {
    const Glide glide(kScreen, 8, 10'000, turn);
    const Frame first = glide.frameAt(0);
    const Frame last = glide.frameAt(10'000);
    return first.width < last.width ? first : last;
  };
  const auto grows = [](int turn) {
    const Glide glide(kScreen, 8, 10'000, turn);
    return glide.frameAt(10'000).width < glide.frameAt(0).width;
  };
  for (int turn = 0; turn < 16; ++turn) {
    EXPECT_NE(nearPlace(turn), nearPlace(turn + 1));
    EXPECT_NE(grows(turn), grows(turn + 1));
  }
}

}  // namespace
}  // namespace saver
