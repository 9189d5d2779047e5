#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/show_stage.h"

namespace {

using support::kBlackPixel;
using support::kBlue;
using support::kBluePixel;
using support::kGreen;
using support::kGreenPixel;
using support::kRed;
using support::kRedPixel;
using support::ShowStage;

void AddThree(ShowStage& show) {
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kGreen);
  show.addPicture({100, 80}, kBlue);
}

TEST(PictureCycle, TheFirstPictureComesHalfASecondAfterTheBackground) {
  ShowStage show;
  AddThree(show);
  show.start();
  show.runFor(499);
  EXPECT_EQ(show.screenAt(512, 384), kBlackPixel);
  show.runFor(1);
  EXPECT_EQ(show.screenAt(512, 384), kRedPixel);
  EXPECT_FALSE(show.form->StartSaver.enabled());
}

TEST(PictureCycle, ThreePicturesInOrderThenTheFirstAgain) {
  ShowStage show;
  AddThree(show);
  show.start();
  show.runFor(600);
  EXPECT_EQ(show.screenAt(512, 384), kRedPixel);
  EXPECT_EQ(show.form->currentImageIndex(), 1) << "always one step ahead of the screen";
  show.runFor(1400);
  EXPECT_EQ(show.screenAt(512, 384), kGreenPixel);
  show.runFor(1300);
  EXPECT_EQ(show.screenAt(512, 384), kBluePixel);
  EXPECT_EQ(show.form->currentImageIndex(), 3) << "the wrap comes with the next tick, not before";
  show.runFor(1300);
  EXPECT_EQ(show.screenAt(512, 384), kRedPixel);
  EXPECT_EQ(show.form->currentImageIndex(), 1);
}

TEST(PictureCycle, TheNextChangeComesAnIntervalAfterTheEndOfTheOneBefore) {
  ShowStage show;
  AddThree(show);
  show.start();
  show.runFor(500);
  show.pictures.opened.clear();
  show.runFor(999);
  EXPECT_TRUE(show.pictures.opened.empty());
  show.runFor(1 + 310);  // the tick, and the pause of the change
  EXPECT_EQ(show.pictures.opened.size(), 1U);
  show.pictures.opened.clear();
  show.runFor(980);
  EXPECT_TRUE(show.pictures.opened.empty());
  show.runFor(400);
  EXPECT_EQ(show.pictures.opened.size(), 1U);
}

TEST(PictureCycle, OnlyLaterChangesRetireAnOldPictureAndPause) {
  ShowStage show;
  AddThree(show);
  show.start();
  show.runFor(500);
  EXPECT_EQ(show.screenAt(512, 384), kRedPixel) << "the first picture needs no pause";
  base::Pixel inThePause = 0;
  show.loop.postAfter(1000 + 100, [&] { inThePause = show.screenAt(512, 384); });
  show.runFor(1000 + 400);
  EXPECT_EQ(inThePause, kBlackPixel) << "the old picture has given way to the background";
  EXPECT_EQ(show.screenAt(512, 384), kGreenPixel);
}

TEST(PictureCycle, ThePauseEndsAcrossMidnight) {
  ShowStage show;
  AddThree(show);
  show.clock.set({2026, 12, 31, 23, 59, 58, 400});
  show.start();
  base::Pixel beforeMidnight = 0;
  show.loop.postAfter(500 + 1000 + 90, [&] { beforeMidnight = show.screenAt(512, 384); });
  show.runFor(500 + 1000 + 400);
  EXPECT_EQ(beforeMidnight, kBlackPixel) << "in the pause, 10 ms before midnight";
  EXPECT_EQ(show.screenAt(512, 384), kGreenPixel);
}

TEST(PictureCycle, WithIntervalZeroACentredPictureStaysForEver) {
  ShowStage show;
  AddThree(show);
  show.set("image/timeInterval", "0");
  show.start();
  show.runFor(3600 * 1000);
  EXPECT_EQ(show.pictures.opened.size(), 1U);
  EXPECT_FALSE(show.form->ImageChangeTimer.enabled());
  EXPECT_EQ(show.screenAt(512, 384), kRedPixel);
}

TEST(PictureCycle, WithIntervalZeroAFloatingPictureHasATimerThatNeverTicks) {
  ShowStage show;
  AddThree(show);
  show.set("image/timeInterval", "0");
  show.set("image/picRandom", "rand");
  show.start();
  show.runFor(60 * 1000);
  EXPECT_TRUE(show.form->ImageChangeTimer.enabled());
  EXPECT_EQ(show.form->ImageChangeTimer.interval(), 0);
  EXPECT_EQ(show.pictures.opened.size(), 1U);
}

TEST(PictureCycle, RandomOrderDrawsWithNoMemory) {
  ShowStage show;
  AddThree(show);
  show.set("image/randomPick", "1");
  show.start();
  show.runFor(600 * 1000);
  std::map<std::string, int> shown;
  bool twiceInARow = false;
  for (std::size_t i = 0; i < show.pictures.opened.size(); ++i) {
    ++shown[show.pictures.opened[i]];
    twiceInARow |= i > 0 && show.pictures.opened[i] == show.pictures.opened[i - 1];
  }
  EXPECT_TRUE(twiceInARow);
  ASSERT_EQ(shown.size(), 3U);
  for (const auto& [path, count] : shown) EXPECT_GT(count, 90) << path;
}

TEST(PictureCycle, RandomOrderIsForTheNumberOneHoweverWritten) {
  const auto firstTen = [](const char* text) {
    ShowStage show;
    for (int i = 0; i < 40; ++i) show.addPicture({10, 10}, kRed);
    show.set("image/randomPick", text);
    show.start();
    show.runFor(500 + 9 * 1310);
    return show.pictures.opened;
  };
  std::vector<std::string> inOrder;
  for (int i = 0; i < 10; ++i) inOrder.push_back("C:\\pictures\\" + std::to_string(i) + ".jpg");
  for (const char* text : {"0", "2", "-1", "0.5", "random"}) EXPECT_EQ(firstTen(text), inOrder) << text;
  for (const char* text : {"1", "1.0", " 1", "1e0"}) EXPECT_NE(firstTen(text), inOrder) << text;
}

TEST(PictureCycle, AnIntervalIsRoundedToWholeMillisecondsWithHalvesToTheEvenOne) {
  const auto interval = [](const char* seconds) {
    ShowStage show;
    AddThree(show);
    show.set("image/timeInterval", seconds);
    show.start();
    show.runFor(501);
    return show.form->ImageChangeTimer.interval();
  };
  EXPECT_EQ(interval("0.1875"), 188);
  EXPECT_EQ(interval("0.3125"), 312);
  EXPECT_EQ(interval("2.0006"), 2001);
  EXPECT_EQ(interval("2.0004"), 2000);
}

TEST(PictureCycle, ANewPictureComesOverTheBackgroundOfItsOwnPlace) {
  // Each pixel of the background has a colour of its own, so that any other part of it is seen.
  ShowStage show({320, 240});
  base::Bitmap ground({320, 240});
  for (int y = 0; y < 240; ++y) {
    for (int x = 0; x < 320; ++x)
      ground.row(y)[x] = base::OpaquePixel(base::Rgb(x % 251, y, (x * 7 + y) % 256));
  }
  show.pictures.add("C:\\ground.bmp", ground);
  show.set("background/backEffect", "2");
  show.set("background/backgroundDisplay", "2");
  show.set("background/backgroundImage", "C:\\ground.bmp");
  show.set("transitions/bLeftWipe", "1");
  show.set("extras/transitionTime", "1000");
  show.addPicture({200, 60}, kRed);
  show.addPicture({60, 200}, kRed);
  show.start();
  // The first picture stands from 1500 ms on; the second begins to come at 3800 ms, after retreat and pause.
  base::Bitmap seen;
  base::PixelRect place;
  show.loop.postAfter(3850, [&] {
    seen = show.window.screen;
    place = show.form->DisplayingPicture.pixelRect();
  });
  show.runFor(3850);
  ASSERT_EQ(place, (base::PixelRect{130, 20, 60, 200}));
  EXPECT_EQ(seen.at(130, 100), kRedPixel) << "it has begun";
  for (int y = 0; y < 240; ++y) {
    for (int x = 140; x < 320; ++x) ASSERT_EQ(seen.at(x, y), ground.at(x, y)) << x << ' ' << y;
  }
}

TEST(PictureCycle, AMissingPicturesTurnIsNotHeldByAnEffectThatNobodySees) {
  ShowStage show;
  AddThree(show);
  for (int i = 0; i < 3; ++i) show.set("images/" + std::to_string(i), "C:\\gone.jpg");
  show.set("transitions/bFade", "1");
  show.set("extras/transitionTime", "5000");
  const std::int64_t begin = show.clock.tickMs();
  show.start();
  show.runFor(500);
  EXPECT_EQ(show.clock.tickMs() - begin, 500) << "the first turn took no time";
  show.runFor(1000);
  EXPECT_EQ(show.pictures.opened.size(), 2U);
  EXPECT_LT(show.clock.tickMs() - begin, 1500 + 350) << "the second took no more than the pause";
}

TEST(PictureCycle, TwoDrawsWithinOneTickOfTheClockDiffer) {
  ShowStage show;
  for (int i = 0; i < 200; ++i) show.addPicture({10, 10}, kRed);
  show.set("image/randomPick", "1");
  show.start();
  std::map<int, int> drawn;
  for (int i = 0; i < 50; ++i) {
    show.form->AdvancePictureIndex();
    ++drawn[show.form->currentImageIndex()];
  }
  EXPECT_GT(drawn.size(), 30U);
}

TEST(PictureCycle, ATickThatComesWhileItsOwnHandlerRunsStartsNoSecondChange) {
  ShowStage show;
  AddThree(show);
  show.set("transitions/bLeftWipe", "1");
  show.set("extras/transitionTime", "2000");
  show.start();
  show.runFor(2000);
  EXPECT_EQ(show.pictures.opened.size(), 1U)
      << "the first change takes longer than the start timer's interval";
}

TEST(PictureCycle, APictureThatCannotBeLoadedShowsTheBackgroundForItsTurn) {
  ShowStage show;
  AddThree(show);
  show.set("images/1", "C:\\gone.jpg");
  show.start();
  show.runFor(2000);
  EXPECT_EQ(show.screenAt(512, 384), kBlackPixel);
  EXPECT_TRUE(show.errors.empty());
  show.runFor(1300);
  EXPECT_EQ(show.screenAt(512, 384), kBluePixel);
}

TEST(PictureCycle, APictureThatBreaksWhileItIsDecodedShowsTheBackgroundForItsTurn) {
  ShowStage show;
  AddThree(show);
  show.pictures.addBroken("C:\\pictures\\1.jpg", {100, 80});
  show.start();
  show.runFor(2000);
  EXPECT_EQ(show.screenAt(512, 384), kBlackPixel);
  EXPECT_TRUE(show.errors.empty());
}

TEST(PictureCycle, WithNoPictureAtAllTheShowRunsOverItsBackground) {
  ShowStage show;
  show.set("background/newBackColor", "255");
  show.start();
  show.runFor(10000);
  EXPECT_EQ(show.screenAt(512, 384), kRedPixel);
  EXPECT_TRUE(show.errors.empty());
  EXPECT_FALSE(show.form->isOver());
}

TEST(PictureCycle, AnIntervalThatIsNoNumberEndsTheShow) {
  ShowStage show;
  AddThree(show);
  show.set("image/timeInterval", "soon");
  show.start();
  show.runFor(600);
  EXPECT_EQ(show.errors, std::vector<std::string>{"type mismatch"});
  EXPECT_TRUE(show.form->isOver());
}

TEST(PictureCycle, TheEndOfTheShowInThePauseTouchesNothingAfterwards) {
  ShowStage show;
  AddThree(show);
  show.start();
  show.runFor(500);
  show.loop.postAfter(1000 + 150, [&] { show.form->unload(); });
  show.runFor(1000 + 151);
  const std::size_t presents = show.window.presented.size();
  const std::size_t opened = show.pictures.opened.size();
  show.runFor(60000);
  EXPECT_EQ(show.window.presented.size(), presents);
  EXPECT_EQ(show.pictures.opened.size(), opened);
  EXPECT_EQ(show.loop.timersRunning(), 0);
}

TEST(PictureCycle, TheShowEndsAtOnceInTheMiddleOfATransition) {
  ShowStage show;
  AddThree(show);
  show.set("transitions/bFade", "1");
  show.set("extras/transitionTime", "5000");
  show.start();
  show.loop.postAfter(1500, [&] { show.form->unload(); });
  show.runFor(1520);
  const std::size_t presents = show.window.presented.size();
  show.runFor(10000);
  EXPECT_EQ(show.window.presented.size(), presents);
}

TEST(PictureCycle, AFlagOfTwoAloneLetsTheShowEndWhileNothingIsEverChosen) {
  ShowStage show;
  AddThree(show);
  show.set("transitions/bFade", "2");
  show.start();
  show.loop.postAfter(3000, [&] { show.form->unload(); });
  show.runFor(3100);
  EXPECT_TRUE(show.form->isOver());
  EXPECT_EQ(show.screenAt(512, 384), kBlackPixel);
}

TEST(PictureCycle, OnTheOlderFamilyWithAPasswordTheSystemIsToldThatASaverRuns) {
  ShowStage guarded;
  guarded.facts = {.osPlatformId = 1, .usePassword = 1};
  guarded.start();
  EXPECT_EQ(guarded.desktop.runningCalls, std::vector<bool>{true});
  ShowStage unguarded;
  unguarded.facts = {.osPlatformId = 1, .usePassword = 0};
  unguarded.start();
  EXPECT_TRUE(unguarded.desktop.runningCalls.empty());
  ShowStage nt;
  nt.facts = {.osPlatformId = 2, .usePassword = 1};
  nt.start();
  EXPECT_TRUE(nt.desktop.runningCalls.empty());
}

TEST(PictureCycle, TheWindowCoversThePrimaryScreen) {
  ShowStage show({1280, 720});
  show.start();
  EXPECT_EQ(show.window.covered, (base::PixelRect{0, 0, 1280, 720}));
  EXPECT_FLOAT_EQ(show.form->width(), 1280 * 15.0F);
  EXPECT_FLOAT_EQ(show.form->height(), 720 * 15.0F);
}

TEST(PictureCycle, RunsForAWeekWithoutARunTimeErrorOrATimerTooMany) {
  ShowStage show({64, 48});
  for (int i = 0; i < 5; ++i) show.addPicture({24, 20}, kRed + i, "Picture " + std::to_string(i));
  for (const char* flag : {"bStandard", "bLeftWipe", "bRightWipe", "bRightandLeftWipe", "bUpAndDown",
                           "bCenter", "bHorizontalBlinds", "bVerticalBlinds", "bFade"}) {
    show.set(std::string("transitions/") + flag, "1");
  }
  show.set("image/timeInterval", "120");
  show.set("image/randomPick", "1");
  show.start();
  show.runFor(3600 * 1000);
  const int timers = show.loop.timersRunning();
  show.runFor(7 * 24LL * 3600 * 1000);
  EXPECT_TRUE(show.errors.empty());
  EXPECT_EQ(show.loop.timersRunning(), timers);
  EXPECT_GT(show.pictures.opened.size(), 4900U);
  EXPECT_FALSE(show.form->isOver());
}

}  // namespace
