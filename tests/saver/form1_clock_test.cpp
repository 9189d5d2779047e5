#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/show_stage.h"

namespace {

using support::kRed;
using support::ShowStage;

TEST(Clock, ShowsThePresentMomentInTheBottomRightCorner) {
  ShowStage show;
  show.set("image/timeDisplay", "1");
  show.clock.set({2026, 11, 21, 13, 5, 9, 0});
  show.start();
  show.runFor(100);
  EXPECT_EQ(show.form->time.caption(), "11/21/2026 1:05:09 PM");
  const base::PixelRect place = show.form->time.pixelRect();
  EXPECT_EQ(place.bottom(), 768);
  EXPECT_LE(place.right(), 1024);
  show.runFor(1000);
  EXPECT_EQ(show.form->time.caption(), "11/21/2026 1:05:10 PM");
}

TEST(Clock, RepaintsOnlyWhenItsTextChanges) {
  ShowStage show;
  show.set("image/timeDisplay", "1");
  show.set("image/timeInterval", "0");
  show.start();
  show.runFor(2050);
  show.window.presented.clear();
  show.runFor(5000);
  EXPECT_EQ(show.window.presented.size(), 5U);
}

TEST(Clock, IsSetInItsOwnFontAndTheCaptionsColour) {
  ShowStage show;
  show.set("image/timeDisplay", "1");
  show.set("font/newFontForeColor", "255");
  show.set("font/newFontName", "Georgia");
  show.start();
  show.runFor(100);
  EXPECT_EQ(show.form->time.font(), (base::Font{.name = "MS Sans Serif", .sizePoints = 13.5F}));
  EXPECT_EQ(show.form->time.foreColor(), kRed);
  const base::PixelRect place = show.form->time.pixelRect();
  EXPECT_EQ(show.screenAt(place.left, place.top), 0xFFFF0000U);
}

TEST(Clock, IsOffForEveryNumberButOneAndTwo) {
  for (const char* number : {"3", "-1", "0.4", "1000"}) {
    ShowStage show;
    show.set("image/timeDisplay", number);
    show.start();
    show.runFor(2000);
    EXPECT_FALSE(show.form->time.visible()) << number;
    EXPECT_FALSE(show.form->timeTimer.enabled()) << number;
    EXPECT_FLOAT_EQ(show.form->time.width(), 0) << number;
    EXPECT_TRUE(show.errors.empty()) << number;
  }
}

TEST(Clock, OffMeansInvisibleWithoutSizeAndNothingUpdated) {
  ShowStage show;
  show.set("image/timeDisplay", "0");
  show.start();
  show.runFor(2000);
  EXPECT_FALSE(show.form->time.visible());
  EXPECT_FLOAT_EQ(show.form->time.width(), 0);
  EXPECT_FLOAT_EQ(show.form->time.height(), 0);
  EXPECT_FALSE(show.form->timeTimer.enabled());
}

TEST(Clock, TheCountdownsRightEdgeStaysOnTheScreenToItsEnd) {
  ShowStage show;
  show.set("image/timeDisplay", "2");
  show.set("image/timeInterval", "0");
  show.set("date/countdownMonth", "11");
  show.set("date/countdownDay", "22");
  show.clock.set({2026, 11, 21, 21, 30, 0, 500});
  show.start();
  show.runFor(100);
  EXPECT_EQ(show.form->time.caption(), "0days  2hours  29minutes  60seconds  ");
  while (show.form->timeTimer.enabled()) {
    show.runFor(900);
    ASSERT_LE(show.form->time.pixelRect().right(), 1024) << show.form->time.caption();
  }
  EXPECT_EQ(show.form->time.caption(), "-1days  23hours  59minutes  60seconds  ")
      << "the text of the last tick that was not past the target stays";
}

TEST(Clock, ATargetThatIsPastLeavesTheLabelEmpty) {
  ShowStage show;
  show.set("image/timeDisplay", "2");
  show.set("date/countdownYear", "2020");
  show.start();
  show.runFor(1000);
  EXPECT_EQ(show.form->time.caption(), "");
  EXPECT_FALSE(show.form->timeTimer.enabled());
  EXPECT_TRUE(show.errors.empty());
}

TEST(Clock, AnImpossibleDateEndsTheShowAtTheFirstTick) {
  ShowStage show;
  show.set("image/timeDisplay", "2");
  show.set("date/countdownMonth", "02");
  show.set("date/countdownDay", "30");
  show.start();
  EXPECT_TRUE(show.errors.empty());
  show.runFor(100);
  EXPECT_EQ(show.errors, std::vector<std::string>{"type mismatch"});
}

}  // namespace
