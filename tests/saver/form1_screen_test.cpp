// The screen becomes another one during the show.
#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/show_stage.h"

namespace {

using support::kBlackPixel;
using support::kRed;
using support::kRedPixel;
using support::ShowStage;

void ChangeScreen(ShowStage& show, base::PixelSize size) {
  show.screen.size = size;
  show.form->ScreenChanged();
}

bool LiesInside(const forms::Control& control, base::PixelSize screen) {
  const base::PixelRect place = control.pixelRect();
  return place.intersected(base::PixelRect::ofSize(screen)) == place;
}

TEST(ScreenChange, TheWindowCoversTheScreenAsItIsNow) {
  ShowStage show({1024, 768});
  show.start();
  ChangeScreen(show, {800, 600});
  EXPECT_EQ(show.window.covered, (base::PixelRect{0, 0, 800, 600}));
  EXPECT_FLOAT_EQ(show.form->width(), 800 * 15.0F);
  EXPECT_FLOAT_EQ(show.form->height(), 600 * 15.0F);
}

TEST(ScreenChange, AtTheSameSizeTheWindowGoesToThePrimaryScreenAndNothingElseChanges) {
  ShowStage show({1024, 768});
  show.addPicture({600, 400}, kRed);
  show.start();
  show.runFor(700);
  const std::size_t opened = show.pictures.opened.size();
  const base::PixelRect place = show.form->DisplayingPicture.pixelRect();
  show.window.calls.clear();
  show.form->ScreenChanged();
  EXPECT_EQ(show.window.calls, std::vector<std::string>{"cover"});
  EXPECT_EQ(show.pictures.opened.size(), opened);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), place);
}

TEST(ScreenChange, WithoutAnyScreenNothingHappens) {
  ShowStage show({1024, 768});
  show.start();
  show.window.calls.clear();
  ChangeScreen(show, {0, 0});
  EXPECT_TRUE(show.window.calls.empty());
  EXPECT_FLOAT_EQ(show.form->width(), 1024 * 15.0F);
}

TEST(ScreenChange, ThePictureIsFittedAgainAndStandsInTheMiddle) {
  ShowStage show({1024, 768});
  show.addPicture({3000, 2000}, kRed);
  show.set("image/timeInterval", "0");
  show.start();
  show.runFor(700);
  ChangeScreen(show, {600, 480});
  // 90 percent of 600 pixels, the height in proportion.
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{30, 60, 540, 360}));
  EXPECT_EQ(show.screenAt(30, 60), kRedPixel);
  EXPECT_EQ(show.screenAt(569, 419), kRedPixel);
  EXPECT_EQ(show.screenAt(29, 60), kBlackPixel);
  EXPECT_EQ(show.screenAt(570, 419), kBlackPixel);
  ChangeScreen(show, {1600, 1200});
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{80, 120, 1440, 960}));
}

TEST(ScreenChange, TheShowGoesOnWithTheNextPictureAndTheSamePictureIsNotCountedAgain) {
  ShowStage show({1024, 768});
  for (int i = 0; i < 3; ++i) show.addPicture({600, 400}, kRed + i);
  show.start();
  show.runFor(700);
  EXPECT_EQ(show.form->currentImageIndex(), 1);
  ChangeScreen(show, {800, 600});
  EXPECT_EQ(show.form->currentImageIndex(), 1);
  EXPECT_EQ(show.pictures.opened.back(), "C:\\pictures\\0.jpg");
  show.runFor(1400);
  EXPECT_EQ(show.form->currentImageIndex(), 2);
  EXPECT_EQ(show.pictures.opened.back(), "C:\\pictures\\1.jpg");
  EXPECT_TRUE(show.errors.empty());
}

TEST(ScreenChange, AFloatingPictureIsPulledBackInside) {
  ShowStage show({1024, 768});
  show.addPicture({100, 80}, kRed);
  show.set("image/picRandom", "rand");
  show.set("image/timeInterval", "60");
  show.start();
  show.runFor(700);
  show.form->DisplayingPicture.move(900 * 15.0F, 680 * 15.0F, 1500, 1200);
  ChangeScreen(show, {800, 600});
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{700, 520, 100, 80}));
  EXPECT_TRUE(show.form->FloatTimer.enabled());
}

TEST(ScreenChange, ACentredCaptionMovesToTheNewMiddleAndAScrollingOneIsNoFurtherOutThanItsStart) {
  for (const char* scroll : {"0", "1"}) {
    ShowStage show({1024, 768});
    show.addPicture({600, 400}, kRed, "caption");
    show.set("font/scroll", scroll);
    show.set("image/timeInterval", "60");
    show.start();
    show.runFor(700);
    ChangeScreen(show, {640, 480});
    const forms::Label& caption = show.form->Label1;
    if (*scroll == '0') {
      EXPECT_FLOAT_EQ(caption.left(), 640 * 15.0F);
    } else {
      EXPECT_FLOAT_EQ(caption.left(), std::trunc((640 * 15.0F - caption.width()) / 2));
    }
  }
}

TEST(ScreenChange, TheClockKeepsItsDistanceFromTheCorner) {
  ShowStage show({1024, 768});
  show.set("image/timeDisplay", "1");
  show.start();
  show.runFor(700);
  const base::PixelRect before = show.form->time.pixelRect();
  ASSERT_TRUE(LiesInside(show.form->time, {1024, 768}));
  ChangeScreen(show, {800, 600});
  EXPECT_EQ(show.form->time.pixelRect(), before.movedBy(800 - 1024, 600 - 768));
  EXPECT_TRUE(LiesInside(show.form->time, {800, 600}));
}

TEST(ScreenChange, AGradientIsComposedForTheNewHeight) {
  ShowStage show({64, 256});
  show.set("background/backEffect", "3");
  show.set("background/redBackground", "255");
  show.start();
  EXPECT_EQ(show.screenAt(0, 255), 0xFF000000U);
  ChangeScreen(show, {64, 512});
  EXPECT_EQ(show.screenAt(0, 510), 0xFF000000U);
  EXPECT_EQ(show.screenAt(0, 256), 0xFF7F0000U);
}

TEST(ScreenChange, TheCopyOfTheDesktopIsNotTakenAgainAndFillsTheNewScreen) {
  ShowStage show({64, 48});
  show.set("background/backEffect", "1");
  show.start();
  for (const base::PixelSize size : {base::PixelSize{100, 90}, base::PixelSize{64, 48}}) {
    ChangeScreen(show, size);
    EXPECT_EQ(show.screen.desktopCopies, 1);
    EXPECT_EQ(show.screenAt(size.width - 1, size.height - 1), 0xFF204060U);
  }
}

TEST(ScreenChange, AnImageThatHasGoneMeanwhileLeavesTheBackgroundsColour) {
  ShowStage show({64, 48});
  show.set("background/backEffect", "2");
  show.set("background/backgroundImage", "C:\\back.jpg");
  show.pictures.add("C:\\back.jpg", {64, 48}, kRed);
  show.start();
  EXPECT_EQ(show.screenAt(5, 5), kRedPixel);
  show.pictures.addBroken("C:\\back.jpg", {64, 48});
  ChangeScreen(show, {80, 60});
  EXPECT_EQ(show.screenAt(5, 5), kBlackPixel);
  EXPECT_FALSE(show.form->isOver());
}

// A show in which every change takes its time, of pictures as large as the screen lets them be.
struct SlowChange : testing::Test {
  SlowChange() {
    show.addPicture({3000, 2000}, kRed);
    show.addPicture({3000, 2000}, base::Rgb(0, 255, 0));
    show.set("transitions/bCenter", "1");
    show.set("extras/transitionTime", "2000");
    show.set("image/timeInterval", "2");
    show.start();
  }

  ShowStage show{{1024, 768}};
};

TEST_F(SlowChange, InTheMiddleOfTheEffectItIsGivenUpAndThePictureStandsWholeOnTheNewScreen) {
  show.loop.postAfter(1500, [&] { ChangeScreen(show, {600, 480}); });
  show.runFor(1600);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{30, 60, 540, 360}));
  EXPECT_EQ(show.screenAt(30, 60), kRedPixel);
  EXPECT_EQ(show.screenAt(569, 419), kRedPixel);
  EXPECT_EQ(show.screenAt(29, 60), kBlackPixel);
  EXPECT_TRUE(show.form->pictureShown());
}

TEST_F(SlowChange, WhileTheOldPictureGivesWayItDisappearsAndTheNextComesWithItsEffect) {
  // First picture 0.5 s + 2 s; change 2 s later; the old picture gives way for 2 s from then on.
  int probes = 0;
  show.loop.postAfter(5000, [&] {
    ChangeScreen(show, {600, 480});
    EXPECT_FALSE(show.form->DisplayingPicture.visible());
    EXPECT_EQ(show.screenAt(300, 240), kBlackPixel);
  });
  show.loop.postAfter(5200, [&] { EXPECT_EQ(show.screenAt(300, 240), kBlackPixel) << "the pause"; });
  show.loop.postAfter(6000, [&] {
    EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{30, 60, 540, 360}));
    EXPECT_EQ(show.screenAt(300, 240), 0xFF00FF00U);
    EXPECT_EQ(show.screenAt(31, 61), kBlackPixel) << "the effect grows from the middle";
    ++probes;
  });
  show.runFor(5100);
  EXPECT_EQ(probes, 1);
  EXPECT_EQ(show.screenAt(31, 61), 0xFF00FF00U);
}

TEST_F(SlowChange, InThePauseBetweenThemTheNextPictureComesAtTheNewSize) {
  show.loop.postAfter(6600, [&] { ChangeScreen(show, {600, 480}); });
  show.runFor(9500);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{30, 60, 540, 360}));
  EXPECT_EQ(show.screenAt(31, 61), 0xFF00FF00U);
}

}  // namespace
