// The show while the display is off: nobody can see it, so it stands still.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "support/started_show.h"

namespace {

constexpr base::PackedColor kColors[] = {base::Rgb(255, 0, 0), base::Rgb(0, 255, 0), base::Rgb(0, 0, 255)};

class DisplayPower : public testing::Test {
 protected:
  DisplayPower() {
    stage.set("extras/loadAhead", "1");
    stage.set("image/timeInterval", "4");
    for (const base::PackedColor color : kColors) stage.addPicture({400, 300}, color, "A caption");
  }

  void off() { stage.window.onDisplayPower(false); }
  void on() { stage.window.onDisplayPower(true); }
  void offAt(std::int64_t ms) {
    stage.loop.postAfter(ms, [this] { off(); });
  }
  void onAt(std::int64_t ms) {
    stage.loop.postAfter(ms, [this] { on(); });
  }

  // Lets a day pass, in which nothing may be loaded, drawn or moved.
  void aDayPassesInTheDark() {
    const auto jobs = stage.workers.jobs;
    const std::size_t opened = stage.pictures.opened.size();
    const float captionLeft = show().form().Label1.left();
    const float pictureLeft = show().form().DisplayingPicture.left();
    const std::string clockText = show().form().time.caption();
    const std::size_t calls = stage.window.calls.size();
    stage.window.presented.clear();
    stage.runFor(24 * 3600 * 1000);
    EXPECT_TRUE(stage.window.presented.empty()) << "drawn";
    EXPECT_EQ(stage.workers.jobs, jobs) << "loaded";
    EXPECT_EQ(stage.pictures.opened.size(), opened) << "loaded";
    EXPECT_EQ(stage.window.calls.size(), calls);
    EXPECT_FLOAT_EQ(show().form().Label1.left(), captionLeft);
    EXPECT_FLOAT_EQ(show().form().DisplayingPicture.left(), pictureLeft);
    EXPECT_EQ(show().form().time.caption(), clockText);
    EXPECT_EQ(stage.loop.timersRunning(), 0) << "nothing wakes the machine";
  }

  startup::Show& show() { return *started.show; }
  base::Pixel middle() const { return stage.screenAt(512, 384); }

  support::StartedShow started;
  support::ShowStage& stage = started.stage;
};

TEST_F(DisplayPower, NothingIsLoadedDrawnOrMovedAndTheRestOfTheIntervalIsKept) {
  started.start();
  stage.runFor(500 + 1000);  // of the first picture's four seconds one has passed
  off();
  aDayPassesInTheDark();
  on();
  stage.runFor(2900);
  EXPECT_EQ(middle(), base::OpaquePixel(kColors[0]));
  stage.runFor(600);
  EXPECT_EQ(middle(), base::OpaquePixel(kColors[1]));
}

TEST_F(DisplayPower, WhatMovesByItselfStandsStillToo) {
  stage.set("image/picRandom", "rand");
  stage.set("image/picSpeed", "5");
  stage.set("image/timeDisplay", "1");
  stage.set("font/scroll", "0");
  started.start();
  stage.runFor(2000);
  off();
  aDayPassesInTheDark();
  const float caption = show().form().Label1.left();
  const float picture = show().form().DisplayingPicture.left();
  const std::string clockText = show().form().time.caption();
  on();
  stage.runFor(500);
  EXPECT_LT(show().form().Label1.left(), caption);
  EXPECT_NE(show().form().DisplayingPicture.left(), picture);
  EXPECT_NE(show().form().time.caption(), clockText);
}

TEST_F(DisplayPower, AGlideStandsStillAndGoesOnFromThere) {
  stage.set("extras/fit", "fill");
  stage.set("extras/panZoom", "8");
  started.start();
  stage.runFor(1500);
  off();
  aDayPassesInTheDark();
  on();
  stage.window.presented.clear();
  stage.runFor(100);
  EXPECT_GE(stage.window.presented.size(), 4U);
}

TEST_F(DisplayPower, AnEffectStandsStillAndGoesOnFromThere) {
  stage.set("transitions/bLeftWipe", "1");
  stage.set("extras/transitionTime", "2000");
  started.start();
  std::vector<base::Pixel> seen;
  const auto lookAt = [&](std::int64_t ms) { stage.loop.postAfter(ms, [&] { seen.push_back(middle()); }); };
  offAt(900);  // the wipe began at half a second and reaches the middle a second later
  lookAt(3'000'000);
  onAt(3'600'000);
  lookAt(3'600'000 + 500);
  lookAt(3'600'000 + 700);
  stage.runFor(3'600'800);
  EXPECT_EQ(seen, (std::vector<base::Pixel>{base::OpaquePixel(0), base::OpaquePixel(0),
                                            base::OpaquePixel(kColors[0])}));
}

TEST_F(DisplayPower, APictureThatArrivesInTheDarkIsShownAfterIt) {
  stage.workers.delayMs = [] { return 3000; };
  started.start();
  offAt(1000);  // the first picture was due at half a second
  onAt(100'000);
  std::vector<base::Pixel> seen;
  for (const std::int64_t ms : {50'000, 100'050}) {
    stage.loop.postAfter(ms, [&] { seen.push_back(middle()); });
  }
  stage.runFor(100'100);
  EXPECT_EQ(seen, (std::vector<base::Pixel>{base::OpaquePixel(0), base::OpaquePixel(kColors[0])}));
}

TEST_F(DisplayPower, ADiskThatSleptInTheDarkHasItsTenSecondsAfterIt) {
  stage.workers.delayMs = [] { return std::optional<int>(); };
  started.start();
  offAt(1000);
  onAt(100'000);
  stage.loop.postAfter(109'000, [this] {
    EXPECT_TRUE(stage.workers.comeBack());
    stage.workers.delayMs = [] { return 20; };
  });
  stage.runFor(109'100);
  EXPECT_EQ(middle(), base::OpaquePixel(kColors[0]));
}

TEST_F(DisplayPower, ABackgroundThatArrivesInTheDarkIsDrawnAfterIt) {
  stage.pictures.add("sky.bmp", {16, 12}, base::Rgb(7, 8, 9));
  stage.set("background/backEffect", "2");
  stage.set("background/backgroundImage", "sky.bmp");
  stage.set("background/backgroundDisplay", "1");
  stage.workers.delayMs = [] { return 300; };
  started.start();
  stage.runFor(100);
  off();
  stage.window.presented.clear();
  stage.runFor(5000);
  EXPECT_TRUE(stage.window.presented.empty());
  on();
  EXPECT_EQ(stage.screenAt(2, 2), base::OpaquePixel(base::Rgb(7, 8, 9)));
}

TEST_F(DisplayPower, AScreenThatChangesInTheDarkIsCoveredAfterIt) {
  started.start();
  stage.runFor(1000);
  off();
  stage.screen.size = {800, 600};
  stage.window.onScreenChanged();
  EXPECT_EQ(stage.window.covered, (base::PixelRect{0, 0, 1024, 768}));
  stage.window.presented.clear();
  stage.runFor(60'000);
  EXPECT_TRUE(stage.window.presented.empty());
  on();
  EXPECT_EQ(stage.window.covered, (base::PixelRect{0, 0, 800, 600}));
  EXPECT_EQ(stage.screenAt(400, 300), base::OpaquePixel(kColors[0]));
}

TEST_F(DisplayPower, AKeyEndsTheShowInTheDarkAlsoInTheMiddleOfAnEffect) {
  stage.set("transitions/bLeftWipe", "1");
  stage.set("extras/transitionTime", "2000");
  started.start();
  offAt(900);
  stage.loop.postAfter(5000, [this] { stage.window.onKeyDown(27); });
  const std::int64_t start = stage.clock.tickMs();
  stage.runFor(100'000);
  EXPECT_TRUE(stage.loop.isQuitting());
  EXPECT_TRUE(stage.window.closed);
  EXPECT_EQ(stage.clock.tickMs(), start + 5000);
}

TEST_F(DisplayPower, ARefusedPasswordInTheDarkLeavesTheShowWhereItWas) {
  started.machine.passwords.accepts = false;
  started.start({.osPlatformId = 1, .usePassword = 1});
  stage.runFor(1500);
  off();
  stage.window.onKeyDown(65);
  EXPECT_FALSE(show().form().isOver());
  aDayPassesInTheDark();
  on();
  stage.runFor(3500);
  EXPECT_EQ(middle(), base::OpaquePixel(kColors[1]));
}

TEST_F(DisplayPower, TwoTimesOffAndTwoTimesOnAreOne) {
  started.start();
  stage.runFor(1500);
  off();
  stage.runFor(1000);
  off();
  stage.runFor(1000);
  on();
  on();
  stage.runFor(2900);
  EXPECT_EQ(middle(), base::OpaquePixel(kColors[0]));
  stage.runFor(600);
  EXPECT_EQ(middle(), base::OpaquePixel(kColors[1]));
}

TEST_F(DisplayPower, WithoutTheKeyTheShowGoesOnAsDocumented) {
  stage.drop("extras/loadAhead");
  started.start();
  stage.runFor(1500);
  off();
  stage.runFor(3400);
  EXPECT_EQ(middle(), base::OpaquePixel(kColors[1]));
}

}  // namespace
