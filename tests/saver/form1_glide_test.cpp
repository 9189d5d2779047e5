// Pictures that glide, in the real show.
#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/look_show.h"

namespace saver {
namespace {

using base::Pixel;
using support::Difference;
using support::kBlackPixel;
using support::kFirstPictureMs;
using support::kRed;
using support::kRedPixel;
using support::ScreensWhile;
using support::Slope;

class FormGlide : public testing::Test, protected support::LookShow {};

TEST_F(FormGlide, AGlidingPictureMovesAtEveryFrameAndNeverJumps) {
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("extras/change", "crossfade");
  show.set("image/timeInterval", "5");
  addPixels("0", Slope({640, 480}));
  addPixels("1", Slope({640, 480}));
  show.start();
  show.runFor(kFirstPictureMs + 720);
  const base::Bitmap first = show.window.screen;
  show.window.presented.clear();
  std::vector<base::Bitmap> screens = ScreensWhile(show, 2000);
  EXPECT_GE(show.window.presented.size(), 120U) << "sixty frames a second";
  for (std::size_t i = 1; i < screens.size(); ++i) {
    // A pixel's way on a slope is a level or two; a jump would be more.
    ASSERT_LE(Difference(screens[i], screens[i - 1]), 3) << "frame " << i;
  }
  EXPECT_GT(Difference(screens.back(), first), 3);
}

TEST_F(FormGlide, TheGlidePassesIntoTheNextChangeWithoutAJump) {
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("extras/change", "crossfade");
  show.set("image/timeInterval", "2");
  for (const char* number : {"0", "1", "2"}) addPixels(number, Slope({640, 480}));
  show.start();
  show.runFor(kFirstPictureMs + 750);
  std::vector<base::Bitmap> screens = ScreensWhile(show, 9000);
  for (std::size_t i = 1; i < screens.size(); ++i) {
    ASSERT_LE(Difference(screens[i], screens[i - 1]), 4) << "frame " << i;
  }
}

TEST_F(FormGlide, AGlideThatHasArrivedCostsNothing) {
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("image/timeInterval", "2");
  show.addPicture({640, 480}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  const int gliding = show.loop.timersRunning();
  show.runFor(1995);
  show.form->ImageChangeTimer.setInterval(60'000);
  show.runFor(100);
  EXPECT_EQ(show.loop.timersRunning(), gliding - 1);
}

TEST_F(FormGlide, WithoutAnimationsPicturesStandStill) {
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("image/timeInterval", "5");
  show.screen.animations = false;
  addPixels("0", Slope({640, 480}));
  show.start();
  show.runFor(kFirstPictureMs);
  const base::Bitmap first = show.window.screen;
  show.window.presented.clear();
  show.runFor(4000);
  EXPECT_TRUE(show.window.presented.empty());
  EXPECT_EQ(show.window.screen, first);
}

TEST_F(FormGlide, TextsStayReadableOverAGlide) {
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("image/timeInterval", "5");
  addPixels("0", Slope({640, 480}));
  show.set("caption/0", "words");
  show.start();
  show.runFor(kFirstPictureMs + 100);
  const base::PixelRect place = show.form->Label1.pixelRect();
  ASSERT_FALSE(place.isEmpty());
  const auto white = [&] {
    int count = 0;
    for (int y = place.top; y < place.bottom(); ++y) {
      for (int x = place.left; x < place.right(); ++x) count += show.screenAt(x, y) == 0xFFFFFFFFU ? 1 : 0;
    }
    return count;
  };
  const int before = white();
  EXPECT_GT(before, 0);
  show.runFor(1500);
  EXPECT_EQ(white(), before);
}

TEST_F(FormGlide, AScreenThatChangesDuringAGlideGetsThePictureAnew) {
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("image/timeInterval", "5");
  show.addPicture({640, 480}, kRed);
  show.start();
  show.runFor(kFirstPictureMs + 300);
  for (const base::PixelSize size : {base::PixelSize{200, 150}, base::PixelSize{480, 360}}) {
    show.screen.size = size;
    show.form->ScreenChanged();
    show.runFor(100);
    EXPECT_EQ(show.screenAt(size.width - 1, size.height - 1), kRedPixel);
    EXPECT_EQ(show.screenAt(0, 0), kRedPixel);
  }
}

TEST_F(FormGlide, ATransparentPictureGlidesWithTheBackgroundBehindIt) {
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("image/timeInterval", "5");
  show.set("background/newBackColor", "16711680");
  addPixels("0", base::Bitmap({640, 480}));
  show.start();
  show.runFor(kFirstPictureMs + 1000);
  EXPECT_EQ(show.screenAt(100, 100), 0xFF0000FFU);
}

TEST_F(FormGlide, APictureThatCannotBeLoadedAfterAGlideShowsNothingOfTheOldOne) {
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("image/timeInterval", "2");
  show.addPicture({640, 480}, kRed);
  show.set("images/1", "C:\\pictures\\missing.jpg");
  show.set("caption/1", "");
  show.set("total/total", "2");
  show.start();
  show.runFor(kFirstPictureMs + 2000 + 300 + 500);
  EXPECT_EQ(show.screenAt(160, 120), kBlackPixel);
}

}  // namespace
}  // namespace saver
