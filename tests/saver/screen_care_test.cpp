#include "saver/screen_care.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <utility>

#include "base/color.h"

namespace saver {
namespace {

constexpr std::int64_t kMinutesOfAWeek = 7 * 24 * 60;
constexpr Leeway kCaption{0, 1};
constexpr Leeway kClock{-1, -1};

double Length(base::PixelPoint p) { return std::hypot(p.x, p.y); }

TEST(ScreenCare, WordsStayWithinTheirReachForAWeekAndMoveSomePixelsEveryMinute) {
  for (const Leeway leeway : {kCaption, kClock, Leeway{1, 1}, Leeway{0, -1}}) {
    base::PixelPoint before = WordsShift(0, leeway);
    for (std::int64_t minute = 1; minute <= kMinutesOfAWeek; ++minute) {
      const base::PixelPoint now = WordsShift(minute, leeway);
      EXPECT_LE(Length(now), kCareReach);
      const double step = Length({now.x - before.x, now.y - before.y});
      EXPECT_GE(step, 1);
      EXPECT_LE(step, 5);
      before = now;
    }
  }
}

TEST(ScreenCare, WordsLeaveTheirPlaceOnlyWhereThereIsRoom) {
  for (std::int64_t minute = 0; minute < kMinutesOfAWeek; ++minute) {
    EXPECT_GE(WordsShift(minute, kCaption).y, 0) << "the caption stands at the top";
    EXPECT_LE(WordsShift(minute, kClock).x, 0) << "the clock stands in the corner";
    EXPECT_LE(WordsShift(minute, kClock).y, 0);
  }
}

TEST(ScreenCare, TheWayIsRoundAndNoPlaceOfItIsStoodInLongerThanOthers) {
  for (const Leeway leeway : {kCaption, kClock}) {
    std::map<std::pair<int, int>, int> minutes;
    for (std::int64_t minute = 0; minute < kMinutesOfAWeek; ++minute) {
      const base::PixelPoint at = WordsShift(minute, leeway);
      ++minutes[{at.x, at.y}];
    }
    EXPECT_GE(minutes.size(), 20U);
    for (const auto& [place, count] : minutes) EXPECT_LE(count, kMinutesOfAWeek / 20);
    EXPECT_LE(Length(WordsShift(0, leeway)), 5) << "it begins near the words' own place";
  }
}

TEST(ScreenCare, APictureMovesByOnePixelOrTwo) {
  for (std::int64_t minute = 0; minute < kMinutesOfAWeek; ++minute) {
    const base::PixelPoint now = PictureShift(minute);
    const base::PixelPoint next = PictureShift(minute + 1);
    EXPECT_GE(Length(now), 1);
    EXPECT_LE(Length(now), 2);
    EXPECT_NE(now, next);
    EXPECT_LE(Length({next.x - now.x, next.y - now.y}), 2);
  }
}

TEST(ScreenCare, NothingIsCutOff) {
  const base::PixelRect room{100, 50, 640, 480};
  EXPECT_EQ(KeptInside({5, 7}, {200, 100, 50, 20}, room), (base::PixelPoint{5, 7}));
  EXPECT_EQ(KeptInside({-5, -7}, {102, 50, 50, 20}, room), (base::PixelPoint{-2, 0}));
  EXPECT_EQ(KeptInside({9, 9}, {100, 50, 636, 478}, room), (base::PixelPoint{4, 2}));
  EXPECT_EQ(KeptInside({9, 9}, {90, 40, 700, 500}, room), (base::PixelPoint{0, 0})) << "too large for it";
  EXPECT_EQ(KeptInside({1, 1}, room, room), (base::PixelPoint{0, 0})) << "what covers it uncovers nothing";
}

TEST(ScreenCare, WhiteIsBrightAndGreyIsNot) {
  EXPECT_TRUE(IsBright(base::kWhite));
  EXPECT_TRUE(IsBright(base::Rgb(255, 255, 0)));
  EXPECT_FALSE(IsBright(base::kBlack));
  EXPECT_FALSE(IsBright(base::Rgb(90, 90, 90)));
}

}  // namespace
}  // namespace saver
