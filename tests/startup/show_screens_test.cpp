// Further screens that are black, and screens that change.
#include "startup/show.h"

#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/started_show.h"

namespace {

using support::kRed;

class ShowOnScreens : public testing::Test, protected support::StartedShow {};

// One cover, left of and above the primary screen.
class CoverTest : public ShowOnScreens {
 protected:
  CoverTest() {
    stage.screen.others = {{-640, -480, 640, 480}};
    stage.set("extras/otherScreens", "black");
    stage.set("image/mouseSensitivity", "30");  // one move
  }
};

TEST_F(CoverTest, AMoveOverACoverLeftOfAndAboveThePrimaryScreenEndsTheShow) {
  start();
  covers.at(0)->onMouseMove({100, 100});
  EXPECT_FALSE(hasEnded()) << "the first only records";
  covers.at(0)->onMouseMove({101, 100});
  EXPECT_TRUE(hasEnded());
}

TEST_F(CoverTest, AtACoversOwnLeftAndTopEdgeNoMoveCounts) {
  start();
  covers.at(0)->onMouseMove({0, 100});
  covers.at(0)->onMouseMove({300, 100});
  EXPECT_FALSE(hasEnded());
  covers.at(0)->onMouseMove({310, 100});
  EXPECT_TRUE(hasEnded());
}

TEST_F(CoverTest, AWayFromOneScreenToAnotherIsNoMoveOfEither) {
  start();
  move(100, 100);
  covers.at(0)->onMouseMove({600, 400});
  EXPECT_FALSE(hasEnded());
}

TEST_F(CoverTest, APointerThatRestsOnACoverIsNobodysWhenAControlMoves) {
  stage.addPicture({1000, 700}, kRed);
  start();
  move(100, 100);
  covers.at(0)->onMouseMove({600, 400});
  stage.runFor(1000);
  covers.at(0)->onMouseMove({600, 400});
  EXPECT_FALSE(hasEnded());
  covers.at(0)->onMouseMove({610, 400});
  EXPECT_TRUE(hasEnded());
}

TEST_F(CoverTest, APointerAboveThePrimaryScreenIsNobodysWhenAControlMoves) {
  stage.screen.others = {{0, -480, 640, 480}};
  stage.addPicture({100, 100}, kRed);
  stage.addPicture({200, 100}, kRed);
  start();
  move(5, 5);
  covers.at(0)->onMouseMove({600, 100});
  stage.runFor(2000);
  move(5, 5);
  EXPECT_FALSE(hasEnded());
}

TEST_F(CoverTest, AnArrangementOfTheScreensIsNoMoveOverACover) {
  start();
  covers.at(0)->onMouseMove({100, 100});
  stage.screen.others = {{-800, -480, 800, 480}};
  window().onScreenChanged();
  covers.at(0)->onMouseMove({260, 100});
  EXPECT_FALSE(hasEnded());
}

TEST_F(CoverTest, AButtonOverACoverEndsTheShow) {
  start();
  covers.at(0)->onMouseDown({10, 10});
  EXPECT_TRUE(hasEnded());
  EXPECT_TRUE(covers.at(0)->closed);
}

TEST_F(CoverTest, AKeyOverACoverEndsTheShow) {
  start();
  covers.at(0)->onKeyDown(65);
  EXPECT_TRUE(hasEnded());
}

TEST_F(CoverTest, APoliteCloseOfACoverEndsTheShow) {
  start();
  covers.at(0)->onCloseRequest();
  EXPECT_TRUE(hasEnded());
}

TEST_F(CoverTest, TheEndOfTheSessionReachesACoverToo) {
  machine.passwords.accepts = false;
  start({.osPlatformId = 1, .usePassword = 1});
  covers.at(0)->onSessionEnd();
  EXPECT_TRUE(hasEnded());
  EXPECT_EQ(machine.log.count("verify 4711"), 0U);
  EXPECT_TRUE(machine.desktop.taskbarVisible);
}

TEST_F(ShowOnScreens, FurtherScreensAreCoveredOnlyWhenTheSettingSaysSoAndTheirInputEndsTheShow) {
  stage.screen.others = {{1024, 0, 800, 600}, {-640, 0, 640, 480}};
  stage.set("extras/otherScreens", "black");
  start();
  ASSERT_EQ(covers.size(), 2U);
  EXPECT_EQ(covers[0]->covered, (base::PixelRect{1024, 0, 800, 600}));
  covers[1]->onKeyDown(65);
  EXPECT_TRUE(hasEnded());
  EXPECT_TRUE(covers[0]->closed);
}

TEST_F(ShowOnScreens, WithoutTheSettingOnlyThePrimaryScreenIsCovered) {
  stage.screen.others = {{1024, 0, 800, 600}};
  start();
  EXPECT_TRUE(covers.empty());
}

TEST_F(ShowOnScreens, AChangeOfTheScreenDoesNotEndItNorDoesThePointerThatWentAlong) {
  stage.set("image/mouseSensitivity", "30");
  start();
  move(1000, 700);
  stage.screen.size = {800, 600};
  window().onScreenChanged();
  move(799, 599);
  move(799, 599);
  EXPECT_FALSE(hasEnded());
  EXPECT_EQ(window().covered, (base::PixelRect{0, 0, 800, 600}));
  move(600, 400);
  EXPECT_TRUE(hasEnded()) << "the user's own moves count as before";
}

TEST_F(ShowOnScreens, APointerThatComesBeforeTheNewsOfTheChangeDoesNotEndItEither) {
  stage.set("image/mouseSensitivity", "30");
  start();
  move(1000, 700);
  stage.screen.size = {800, 600};
  move(799, 599);
  window().onScreenChanged();
  move(799, 599);
  EXPECT_FALSE(hasEnded());
}

TEST_F(ShowOnScreens, AScreenThatChangedWhileTheShowWasLoadedIsCoveredAsItIsNow) {
  window().onCover = [this] { stage.screen.size = {800, 600}; };
  start();
  EXPECT_EQ(window().covered, (base::PixelRect{0, 0, 800, 600}));
  EXPECT_EQ(show->form().screenSize(), (base::PixelSize{800, 600}));
}

TEST_F(ShowOnScreens, TheWindowsOfFurtherScreensFollowTheirArrangement) {
  stage.screen.others = {{1024, 0, 800, 600}, {-640, 0, 640, 480}};
  stage.set("extras/otherScreens", "black");
  start();
  stage.screen.others = {{1024, 100, 1280, 720}};
  window().onScreenChanged();
  EXPECT_EQ(covers[0]->covered, (base::PixelRect{1024, 100, 1280, 720}));
  EXPECT_FALSE(covers[0]->closed);
  EXPECT_TRUE(covers[1]->closed);
  stage.screen.others.push_back({0, 768, 640, 480});
  window().onScreenChanged();
  ASSERT_EQ(covers.size(), 3U);
  EXPECT_EQ(covers[2]->covered, (base::PixelRect{0, 768, 640, 480}));
  covers[2]->onKeyDown(65);
  EXPECT_TRUE(hasEnded());
  EXPECT_TRUE(covers[2]->closed);
}

TEST_F(ShowOnScreens, APointerOnAFurtherScreenIsMeasuredWhereThatScreenIsNow) {
  stage.screen.others = {{1024, 0, 800, 600}};
  stage.set("extras/otherScreens", "black");
  stage.set("image/mouseSensitivity", "30");
  start();
  stage.screen.others = {{2048, 0, 800, 600}};
  window().onScreenChanged();
  move(1000, 100);
  covers[0]->onMouseMove({-1048, 100});  // the same place of the desktop
  EXPECT_FALSE(hasEnded());
}

}  // namespace
