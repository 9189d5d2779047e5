// One show on several screens: the same picture, a picture of its own for each, or one over all of them.
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "support/colors.h"
#include "support/several_screens.h"

namespace {

using support::kBlackPixel;
using support::kBlue;
using support::kGreen;
using support::kRed;
using support::kViolet;
using support::kYellow;

class SeveralScreens : public testing::Test, protected support::ScreensShow {};

TEST_F(SeveralScreens, StayAsTheyAreWithoutTheKeyAndWithAnyOtherText) {
  stage.addPicture({400, 300}, kRed);
  startShowing("all");
  stage.runFor(1000);
  EXPECT_TRUE(covers.empty());
  EXPECT_EQ(middle(0), base::OpaquePixel(kRed));
}

TEST_F(SeveralScreens, ShowTheSamePictureSizedForEachOfThem) {
  stage.set("image/picturePercent", "50");
  stage.addPicture({4000, 3000}, kRed);
  startShowing("same");
  stage.runFor(1000);
  ASSERT_EQ(covers.size(), 2U);
  EXPECT_EQ(middles(), pixels({kRed, kRed, kRed}));
  EXPECT_EQ(columns(window().screen, kRed), 512);
  EXPECT_EQ(columns(covers[0]->screen, kRed), 400);
  EXPECT_EQ(columns(covers[1]->screen, kRed), 300);
}

TEST_F(SeveralScreens, TakeTheNextPicturesOfTheOrderOneAScreen) {
  addPictures(5);
  startShowing("different");
  stage.runFor(700);
  EXPECT_EQ(middles(), pixels({kRed, kGreen, kBlue}));
  stage.runFor(1400);
  EXPECT_EQ(middles(), pixels({kYellow, kViolet, kRed}));
}

TEST_F(SeveralScreens, ShowNoPictureTwiceWhileThereAreEnough) {
  for (const char* shuffle : {"", "1"}) {
    SCOPED_TRACE(shuffle);
    support::StartedShow run;
    run.stage.screen.others = stage.screen.others;
    run.stage.set("image/randomPick", "1");
    run.stage.set("extras/shuffle", shuffle);
    run.stage.set("extras/otherScreens", "different");
    for (const base::PackedColor color : {kRed, kGreen, kBlue}) run.stage.addPicture({400, 300}, color);
    run.start();
    run.stage.runFor(700);
    for (int change = 0; change < 40; ++change) {
      std::set<base::Pixel> shown{run.stage.screenAt(512, 384)};
      for (const support::FakeStageWindow* cover : run.covers) {
        shown.insert(cover->screen.at(cover->screen.size().width / 2, cover->screen.size().height / 2));
      }
      EXPECT_EQ(shown.size(), 3U) << "change " << change;
      run.stage.runFor(1300);
    }
  }
}

TEST_F(SeveralScreens, ShareTheOnlyPictureThereIs) {
  addPictures(1);
  startShowing("different");
  stage.runFor(700);
  EXPECT_EQ(middles(), pixels({kRed, kRed, kRed}));
}

TEST_F(SeveralScreens, HaveTheirBackgroundsBeforeAnyIsSeenBesideTheDesktop) {
  stage.set("background/newBackColor", std::to_string(kBlue));
  addPictures(2);
  std::size_t coveredAtFirstFrame = 0;
  stage.window.onCover = [&] { EXPECT_TRUE(covers.empty()) << "the primary screen's window comes first"; };
  startShowing("same");
  for (const support::FakeStageWindow* cover : covers) {
    if (!cover->calls.empty() && cover->calls.front() == "cover") ++coveredAtFirstFrame;
    EXPECT_EQ(cover->screen.at(3, 3), base::OpaquePixel(kBlue));
  }
  EXPECT_EQ(coveredAtFirstFrame, 2U);
  EXPECT_EQ(window().screen.at(3, 3), base::OpaquePixel(kBlue));
}

TEST_F(SeveralScreens, HaveTheirOwnPartOfTheDesktopBehindThePictures) {
  stage.set("background/backEffect", "1");
  startShowing("same");
  EXPECT_EQ(stage.screen.copied,
            (std::vector<base::PixelRect>{{0, 0, 1024, 768}, {1024, 100, 800, 600}, {-600, -200, 600, 900}}));
}

TEST_F(SeveralScreens, HaveAGradientOverTheHeightOfEach) {
  stage.set("background/backEffect", "3");
  stage.set("background/redBackground", "255");
  startShowing("same");
  for (const support::FakeStageWindow* cover : covers) {
    const base::Bitmap& shown = cover->screen;
    EXPECT_EQ(shown.at(1, 0), window().screen.at(1, 0));
    EXPECT_EQ(shown.at(1, shown.size().height - 1), window().screen.at(1, 767));
  }
}

TEST_F(SeveralScreens, EachStretchTheUsersPictureOverAllOfThemselves) {
  stage.set("background/backEffect", "2");
  stage.set("background/backgroundImage", "C:\\back.jpg");
  stage.set("background/backgroundDisplay", "1");
  stage.pictures.add("C:\\back.jpg", {300, 200}, kYellow);
  startShowing("same");
  stage.runFor(100);
  for (const base::Bitmap* shown : {&window().screen, &covers.at(0)->screen, &covers.at(1)->screen}) {
    EXPECT_EQ(columns(*shown, kYellow), shown->size().width);
    EXPECT_EQ(shown->at(0, shown->size().height - 1), base::OpaquePixel(kYellow));
  }
}

TEST_F(SeveralScreens, ChangeTogetherInEveryFrame) {
  stage.set("transitions/bLeftWipe", "1");
  stage.set("extras/transitionTime", "1000");
  stage.set("image/picturePercent", "99");
  addPictures(1, {2000, 2000});
  startShowing("same");
  const std::vector<const base::Bitmap*> screens{&window().screen, &covers.at(0)->screen,
                                                 &covers.at(1)->screen};
  std::vector<std::vector<int>> frames;
  for (int frame = 0; frame < 12; ++frame) {
    stage.loop.postAfter(550 + 100 * frame, [&] {
      frames.emplace_back();
      for (const base::Bitmap* screen : screens) frames.back().push_back(columns(*screen, kRed));
    });
  }
  stage.runFor(2000);
  const std::vector<int>& whole = frames.back();
  EXPECT_GT(*std::ranges::min_element(whole), 500);
  int between = 0;
  for (const std::vector<int>& frame : frames) {
    const double part = static_cast<double>(frame[0]) / whole[0];
    if (part > 0 && part < 1) ++between;
    for (std::size_t screen = 1; screen < frame.size(); ++screen) {
      EXPECT_NEAR(static_cast<double>(frame[screen]) / whole[screen], part, 0.02);
    }
  }
  EXPECT_GE(between, 8);
}

TEST_F(SeveralScreens, EachScrollOrCentreTheirOwnCaptionAndTheClockIsOnThePrimaryOne) {
  stage.set("image/timeDisplay", "1");
  stage.addPicture({400, 300}, kRed, "a caption");
  startShowing("same");
  const int calls = stage.loop.timersRunning();
  stage.runFor(1200);
  EXPECT_TRUE(show->form().time.visible());
  for (support::FakeStageWindow* cover : covers) {
    const base::Bitmap& shown = cover->screen;
    const auto isInk = [&](int x, int y) { return shown.at(x, y) != kBlackPixel; };
    bool captionInk = false;
    bool clockInk = false;
    for (int x = 0; x < shown.size().width; ++x) {
      for (int y = 0; y < 20; ++y) {
        captionInk = captionInk || isInk(x, y);
        clockInk = clockInk || isInk(x, shown.size().height - 1 - y);
      }
    }
    EXPECT_TRUE(captionInk);
    EXPECT_FALSE(clockInk);
  }
  EXPECT_GT(calls, 0);
}

TEST_F(SeveralScreens, WakeTheMachineBetweenTwoChangesNoMoreOftenThanOne) {
  const auto wakes = [](std::vector<base::PixelRect> others) {
    support::StartedShow run;
    run.stage.screen.others = std::move(others);
    run.stage.set("extras/otherScreens", "same");
    run.stage.set("image/timeInterval", "10");
    run.stage.addPicture({400, 300}, kRed, "a caption");
    run.start();
    run.stage.runFor(2000);
    int count = 0;
    run.stage.loop.afterEach = [&] { ++count; };
    run.stage.runFor(7000);
    return count;
  };
  EXPECT_EQ(wakes(stage.screen.others), wakes({}));
}

TEST_F(SeveralScreens, FloatInOneDirectionAndBounceEachForItself) {
  stage.set("image/picRandom", "rand");
  stage.set("image/picSpeed", "5");
  stage.set("image/timeInterval", "1000");
  stage.set("image/picturePercent", "50");
  addPictures(1, {300, 200});
  startShowing("same");
  stage.runFor(60'000);
  // Each has found its own way inside its own screen.
  for (const support::FakeStageWindow* cover : covers) EXPECT_GT(columns(cover->screen, kRed) + 1, 0);
  EXPECT_FALSE(hasEnded());
  std::set<std::pair<int, int>> corners;
  for (const base::Bitmap* shown : {&window().screen, &covers[0]->screen, &covers[1]->screen}) {
    for (int y = 0; y < shown->size().height; ++y) {
      const base::Pixel* row = shown->row(y);
      const base::Pixel* end = row + shown->size().width;
      const base::Pixel* found = std::find(row, end, base::OpaquePixel(kRed));
      if (found == end) continue;
      corners.insert({static_cast<int>(found - row), y});
      break;
    }
  }
  EXPECT_EQ(corners.size(), 3U) << "three screens of three sizes, after a minute of bouncing";
}

TEST_F(SeveralScreens, EndByAKeyOrAButtonOnAnyOfThem) {
  addPictures(2);
  startShowing("different");
  stage.runFor(800);
  covers[1]->onMouseDown({5, 5});
  EXPECT_TRUE(hasEnded());
  EXPECT_TRUE(covers[0]->closed);
  EXPECT_TRUE(covers[1]->closed);
  EXPECT_EQ(stage.loop.timersRunning(), 0);
}

TEST_F(SeveralScreens, CountAWayFromOneToAnotherAsNoMoreThanOneMove) {
  stage.set("image/mouseSensitivity", "28");  // two moves
  startShowing("same");
  move(1000, 400);
  move(1020, 400);  // one
  covers[0]->onMouseMove({10, 300});
  EXPECT_FALSE(hasEnded());
  covers[0]->onMouseMove({30, 300});  // two
  EXPECT_TRUE(hasEnded());
}

TEST_F(SeveralScreens, KeepThePictureOnAScreenThatStaysWhenAnotherGoes) {
  addPictures(5);
  startShowing("different");
  stage.runFor(800);
  const base::Pixel kept = middle(2);
  stage.screen.others = {{-600, -200, 600, 900}};
  window().onScreenChanged();
  EXPECT_TRUE(covers[0]->closed);
  EXPECT_EQ(middle(2), kept);
  EXPECT_EQ(covers[1]->covered, (base::PixelRect{-600, -200, 600, 900}));
  stage.runFor(1400);
  EXPECT_NE(middle(2), kept);
  EXPECT_NE(middle(2), kBlackPixel);
}

TEST_F(SeveralScreens, HaveABackgroundAtOnceAndAPictureAtTheNextChangeWhenTheyCome) {
  stage.screen.others.clear();
  stage.set("background/newBackColor", std::to_string(kBlue));
  addPictures(4);
  startShowing("different");
  stage.runFor(800);
  stage.screen.others = {{1024, 0, 640, 480}};
  window().onScreenChanged();
  ASSERT_EQ(covers.size(), 1U);
  EXPECT_EQ(middle(1), base::OpaquePixel(kBlue));
  stage.runFor(1400);
  EXPECT_EQ(middles(), pixels({kGreen, kBlue}));
}

TEST_F(SeveralScreens, MayComeAndGoInTheMiddleOfAChange) {
  stage.set("transitions/bCenter", "1");
  stage.set("extras/transitionTime", "2000");
  addPictures(5);
  startShowing("different");
  stage.loop.postAfter(1500, [&] {
    stage.screen.others = {{1024, 0, 320, 240}, {1344, 0, 320, 240}, {1664, 0, 320, 240}};
    window().onScreenChanged();
  });
  stage.runFor(2000);
  EXPECT_EQ(middle(0), base::OpaquePixel(kRed));
  stage.loop.postAfter(1000, [&] {
    stage.screen.others.clear();
    window().onScreenChanged();
  });
  stage.runFor(9000);
  EXPECT_FALSE(hasEnded());
  EXPECT_TRUE(std::ranges::all_of(covers, [](const auto* cover) { return cover->closed; }));
}

TEST_F(SeveralScreens, ShowOnePictureOverTheRectangleThatHoldsAllOfThem) {
  stage.set("image/picturePercent", "99");
  stage.addPicture({5000, 2000}, kRed);
  startShowing("span");
  stage.runFor(800);
  EXPECT_EQ(window().covered, (base::PixelRect{-600, -200, 2424, 968}));
  EXPECT_EQ(columns(window().screen, kRed), 2400);
  EXPECT_TRUE(covers.empty());
}

TEST_F(SeveralScreens, KeepCaptionAndClockOfASpanningShowOnThePrimaryOne) {
  stage.set("image/timeDisplay", "1");
  stage.addPicture({400, 300}, kRed, "a caption");
  startShowing("span");
  stage.runFor(1200);
  const base::PixelRect part{600, 200, 1024, 768};
  const saver::Form1& form = show->form();
  EXPECT_EQ(form.primaryPart(), part);
  EXPECT_EQ(form.Label1.pixelRect().top, 200);
  EXPECT_NEAR(form.Label1.pixelRect().left + form.Label1.pixelRect().width / 2, 600 + 512, 1);
  EXPECT_EQ(form.time.pixelRect().bottom(), part.bottom());
  EXPECT_LE(form.time.pixelRect().right(), part.right());
}

TEST_F(SeveralScreens, LayASpanningShowOutAnewWhenAScreenGoes) {
  stage.set("image/timeDisplay", "1");
  stage.addPicture({5000, 2000}, kRed, "a caption");
  startShowing("span");
  stage.runFor(800);
  stage.screen.others = {{1024, 100, 800, 600}};
  window().onScreenChanged();
  EXPECT_EQ(window().covered, (base::PixelRect{0, 0, 1824, 768}));
  EXPECT_EQ(show->form().Label1.pixelRect().top, 0);
  EXPECT_EQ(show->form().time.pixelRect().bottom(), 768);
  EXPECT_EQ(middle(0), base::OpaquePixel(kRed));
}

TEST_F(SeveralScreens, FadeTogetherFromOnePictureToTheNext) {
  stage.set("extras/change", "crossfade");
  stage.set("extras/transitionTime", "1000");
  addPictures(4);
  startShowing("same");
  std::vector<base::Pixel> half;
  stage.loop.postAfter(3000, [&] { half = middles(); });  // the second picture came from 2500 on
  stage.runFor(4000);
  ASSERT_EQ(half.size(), 3U);
  EXPECT_NE(half[0], base::OpaquePixel(kRed));
  EXPECT_NE(half[0], base::OpaquePixel(kGreen));
  EXPECT_EQ(half, (std::vector<base::Pixel>{half[0], half[0], half[0]}));
}

TEST_F(SeveralScreens, RunADirectEffectOnEveryOne) {
  stage.set("extras/change", "direct");
  stage.set("transitions/bUpAndDown", "1");
  stage.set("extras/transitionTime", "500");
  addPictures(4);
  startShowing("different");
  stage.runFor(1100);
  EXPECT_EQ(middles(), pixels({kRed, kGreen, kBlue}));
  stage.runFor(1600);
  EXPECT_EQ(middles(), pixels({kYellow, kRed, kGreen}));
}

TEST_F(SeveralScreens, ArePreparedForAheadOfTheChange) {
  stage.set("extras/loadAhead", "1");
  addPictures(5);
  startShowing("different");
  stage.runFor(700);
  EXPECT_EQ(middles(), pixels({kRed, kGreen, kBlue}));
  stage.runFor(1400);
  EXPECT_EQ(middles(), pixels({kYellow, kViolet, kRed}));
}

TEST_F(SeveralScreens, KeepTheirBackgroundsWhileThePasswordIsAskedAfterAnError) {
  stage.set("font/scroll", "soon");
  stage.addPicture({400, 300}, kRed, "a caption");
  machine.passwords.accepts = false;
  stage.set("extras/otherScreens", "same");
  start({.osPlatformId = 1, .usePassword = 1});
  stage.runFor(2000);
  EXPECT_FALSE(hasEnded());
  EXPECT_EQ(middles(), (std::vector<base::Pixel>{kBlackPixel, kBlackPixel, kBlackPixel}));
}

TEST_F(SeveralScreens, ThatMirrorEachOtherHaveOneShow) {
  stage.screen.others = {{0, 0, 1024, 768}, {1024, 0, 800, 600}, {1024, 0, 800, 600}};
  addPictures(5);
  startShowing("different");
  stage.runFor(700);
  ASSERT_EQ(covers.size(), 1U);
  EXPECT_EQ(middles(), pixels({kRed, kGreen}));
}

}  // namespace
