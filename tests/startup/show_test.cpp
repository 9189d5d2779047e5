#include "startup/show.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/errors.h"
#include "support/colors.h"
#include "support/started_show.h"

namespace {

using support::kRed;

class ShowTest : public testing::Test, protected support::StartedShow {};

TEST_F(ShowTest, CoversTheScreenAndTakesTheKeyboard) {
  start();
  EXPECT_EQ(window().calls, (std::vector<std::string>{"cover", "activate"}));
  EXPECT_FALSE(hasEnded());
}

TEST_F(ShowTest, AnyKeyEndsItBeforeAnythingWasDrawn) {
  start();
  window().onKeyDown(65);
  EXPECT_TRUE(hasEnded());
  EXPECT_TRUE(window().closed);
  EXPECT_TRUE(machine.desktop.taskbarVisible);
}

TEST_F(ShowTest, AnyButtonEndsItOverThePictureToo) {
  stage.addPicture({1000, 700}, kRed);
  start();
  stage.runFor(1000);
  window().onMouseDown({512, 384});
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowTest, AKeyInTheMiddleOfATransitionEndsItAtOnce) {
  stage.addPicture({600, 400}, kRed);
  stage.set("transitions/bCenter", "1");
  stage.set("extras/transitionTime", "5000");
  start();
  stage.loop.postAfter(2000, [&] { window().onKeyDown(27); });
  stage.runFor(60000);
  EXPECT_TRUE(hasEnded());
  EXPECT_LT(stage.clock.tickMs(), 1000 + 2100) << "no time passed after the key";
}

TEST_F(ShowTest, TheFirstMoveOnlyRecordsAndTheThresholdCountsTheOthers) {
  stage.set("image/mouseSensitivity", "28");
  start();
  move(100, 100);
  move(200, 100);
  EXPECT_FALSE(hasEnded());
  move(300, 100);
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowTest, MovesOverTheBackgroundAreInTwipsSoOnePixelCounts) {
  stage.set("image/mouseSensitivity", "30");
  start();
  move(100, 100);
  move(101, 100);
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowTest, MovesOverThePictureAreInPixelsSoThreeOfThemNeverCount) {
  stage.addPicture({900, 680}, kRed);
  stage.set("image/mouseSensitivity", "30");
  start();
  stage.runFor(1000);
  move(500, 400);
  for (int i = 0; i < 50; ++i) move(500 + 3 * (i % 2), 400 - 3 * (i % 2));
  EXPECT_FALSE(hasEnded());
  move(510, 400);
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowTest, AfterAGradientTheFormMeasuresItsHeightIn256Parts) {
  stage.set("image/mouseSensitivity", "30");
  stage.set("background/backEffect", "3");
  start();
  move(100, 100);
  move(100, 108);  // 8 pixels of 768 are 2.7 parts
  EXPECT_FALSE(hasEnded());
  move(100, 118);
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowTest, APictureThatFloatsUnderARestingPointerCountsNothing) {
  stage.addPicture({400, 300}, kRed);
  stage.set("image/mouseSensitivity", "30");
  stage.set("image/picRandom", "rand");
  stage.set("image/picSpeed", "5");
  start();
  move(512, 384);
  stage.runFor(500);
  for (int i = 0; i < 300; ++i) {
    stage.runFor(50);
    move(512, 384);
  }
  EXPECT_FALSE(hasEnded());
}

TEST_F(ShowTest, APoliteCloseEndsIt) {
  start();
  window().onCloseRequest();
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowTest, TheEndOfTheSessionPutsTheSystemBackWithoutAskingForAPassword) {
  machine.passwords.accepts = false;
  start({.osPlatformId = 1, .usePassword = 1});
  EXPECT_TRUE(machine.desktop.running);
  window().onSessionEnd();
  EXPECT_TRUE(hasEnded());
  EXPECT_FALSE(machine.desktop.running);
  EXPECT_TRUE(machine.desktop.taskbarVisible);
}

TEST_F(ShowTest, ARunTimeErrorEndsItWithoutAMessageAndPutsTheSystemBack) {
  stage.addPicture({40, 30}, kRed);
  stage.set("image/timeInterval", "soon");
  start();
  stage.runFor(1000);
  EXPECT_TRUE(hasEnded());
  EXPECT_TRUE(machine.desktop.taskbarVisible);
  EXPECT_TRUE(window().closed);
}

enum class Way { Key, SessionEnd, Error };

class ShowThatEnds : public ShowTest, public testing::WithParamInterface<Way> {
 protected:
  void end() {
    switch (GetParam()) {
      case Way::Key:
        return window().onKeyDown(65);
      case Way::SessionEnd:
        return window().onSessionEnd();
      case Way::Error:
        return stage.loop.dispatch([] { throw base::Overflow(); });
    }
  }
};

TEST_P(ShowThatEnds, PutsTheSystemBackFirstThenStopsWhatRunsThenClosesItsWindows) {
  stage.screen.others = {{1024, 0, 800, 600}};
  stage.set("extras/otherScreens", "black");
  start();
  ASSERT_EQ(covers.size(), 1U);
  std::vector<std::string> done;  // already, when a window is closed
  const auto look = [&] {
    std::string so;
    if (machine.desktop.taskbarVisible) so += "taskbar ";
    if (show->form().isOver()) so += "form ";
    if (hasEnded()) so += "program ";
    done.push_back(so);
  };
  window().onClose = look;
  covers[0]->onClose = look;
  end();
  EXPECT_EQ(done, (std::vector<std::string>{"taskbar form ", "taskbar form "}));
  EXPECT_TRUE(hasEnded());
}

INSTANTIATE_TEST_SUITE_P(ByEach, ShowThatEnds, testing::Values(Way::Key, Way::SessionEnd, Way::Error));

TEST_F(ShowTest, AnErrorWhileLoadingEndsItToo) {
  stage.set("font/newFontForeColor", "white");
  start();
  EXPECT_TRUE(hasEnded());
  EXPECT_TRUE(machine.desktop.taskbarVisible);
}

TEST_F(ShowTest, WhereAPasswordIsNeededAnErrorAsksForItAndARefusalLeavesTheBackground) {
  machine.passwords.accepts = false;
  stage.addPicture({1000, 700}, kRed);
  stage.set("image/timeInterval", "soon");
  stage.set("background/newBackColor", "65280");
  start({.osPlatformId = 1, .usePassword = 1});
  stage.runFor(3000);
  EXPECT_EQ(machine.log.count("verify 4711"), 1U);
  EXPECT_FALSE(hasEnded());
  EXPECT_FALSE(window().closed);
  EXPECT_FALSE(machine.desktop.taskbarVisible);
  EXPECT_TRUE(machine.desktop.running);
  EXPECT_EQ(stage.screenAt(512, 384), 0xFF00FF00U) << "the background, and no picture";
  EXPECT_EQ(stage.loop.timersRunning(), 0);
  stage.screen.size = {800, 600};
  window().onScreenChanged();
  EXPECT_EQ(window().covered, (base::PixelRect{0, 0, 800, 600})) << "nothing comes from behind it";
  EXPECT_EQ(stage.screenAt(400, 300), 0xFF00FF00U) << "the background is drawn anew";
  machine.passwords.accepts = true;
  window().onKeyDown(65);
  EXPECT_TRUE(hasEnded());
  EXPECT_TRUE(machine.desktop.taskbarVisible);
  EXPECT_FALSE(machine.desktop.running);
}

TEST_F(ShowTest, WhereAPasswordIsNeededAnErrorWhileLoadingAsksForItToo) {
  machine.passwords.accepts = false;
  stage.set("font/newFontForeColor", "white");
  start({.osPlatformId = 1, .usePassword = 1});
  EXPECT_EQ(machine.log.count("verify 4711"), 1U);
  EXPECT_FALSE(hasEnded());
  EXPECT_EQ(window().covered, (base::PixelRect{0, 0, 1024, 768}));
  machine.passwords.accepts = true;
  window().onMouseDown({5, 5});
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowTest, ThePointerThatARefusalParksCountsNoMove) {
  machine.passwords.accepts = false;
  stage.set("image/mouseSensitivity", "30");  // one move
  start({.osPlatformId = 1, .usePassword = 1});
  move(100, 100);
  window().onKeyDown(65);
  ASSERT_EQ(machine.log.count("verify 4711"), 1U);
  move(1023, 767);  // the corner to which the program itself moved it
  EXPECT_EQ(machine.log.count("verify 4711"), 1U);
  move(900, 700);
  EXPECT_EQ(machine.log.count("verify 4711"), 2U) << "the user's hand";
}

TEST_F(ShowTest, ThePointerOverThePictureIsMeasuredFromThePicturesLeftAndTop) {
  stage.addPicture({400, 300}, kRed);  // from 312, 234 on
  stage.set("image/mouseSensitivity", "30");
  start();
  stage.runFor(1000);
  const base::PixelRect place = show->form().DisplayingPicture.pixelRect();
  ASSERT_GT(place.left, 100);
  ASSERT_GT(place.top, 100);
  move(place.left, place.top + 50);  // on its left edge, where no move counts
  move(place.left + 60, place.top + 50);
  EXPECT_FALSE(hasEnded());
  move(place.left + 50, place.top);  // on its top edge; the way there counts
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowTest, ARefusedPasswordShowsTheWindowAgainAndTheShowGoesOn) {
  machine.passwords.accepts = false;
  start({.osPlatformId = 1, .usePassword = 1});
  window().onKeyDown(65);
  EXPECT_FALSE(hasEnded());
  EXPECT_EQ(window().calls.back(), "activate");
  machine.passwords.accepts = true;
  window().onKeyDown(65);
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowTest, IsToldNothingAnyMoreWhenItIsGone) {
  start();
  const saver::ShowServices services = stage.services();
  EXPECT_TRUE(services.pictures.onFailure);
  EXPECT_TRUE(services.ahead.onFailure);
  EXPECT_TRUE(services.stage.onPlacesChanged);
  show.reset();
  EXPECT_FALSE(services.pictures.onFailure);
  EXPECT_FALSE(services.ahead.onFailure);
  EXPECT_FALSE(services.stage.onPlacesChanged);
}

}  // namespace
