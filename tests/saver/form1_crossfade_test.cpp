// Crossfades and direct changes in the real show.
#include <gtest/gtest.h>

#include "support/channels.h"
#include "support/colors.h"
#include "support/look_show.h"

namespace saver {
namespace {

using base::Pixel;
using support::Channel;
using support::kBlackPixel;
using support::kFirstPictureMs;
using support::kGreen;
using support::kGreenPixel;
using support::kRed;
using support::kRedPixel;
using support::ScreensWhile;

class FormCrossfade : public testing::Test, protected support::LookShow {};

TEST_F(FormCrossfade, ACrossfadeGoesStraightFromOnePictureToTheNext) {
  show.set("extras/change", "crossfade");
  show.addPicture({200, 100}, kRed);
  show.addPicture({200, 100}, kGreen);
  show.start();
  show.runFor(kFirstPictureMs + 700 + 20);
  ASSERT_EQ(show.screenAt(160, 120), kRedPixel);
  int red = 255;
  int green = 0;
  bool mixed = false;
  for (const base::Bitmap& screen : ScreensWhile(show, 1760)) {
    const Pixel pixel = screen.at(160, 120);
    ASSERT_LE(Channel(pixel, 2), red) << "the old picture only leaves";
    ASSERT_GE(Channel(pixel, 1), green) << "the new one only comes";
    ASSERT_EQ(Channel(pixel, 0), 0);
    red = Channel(pixel, 2);
    green = Channel(pixel, 1);
    ASSERT_NEAR(red * red + green * green, 255 * 255, 400) << "as much light as ever";
    mixed = mixed || (red > 100 && green > 100);
  }
  EXPECT_TRUE(mixed);
  EXPECT_EQ(show.screenAt(160, 120), kGreenPixel);
}

TEST_F(FormCrossfade, ACrossfadeTakesTheTransitionTime) {
  show.set("extras/change", "crossfade");
  show.set("extras/transitionTime", "2000");
  show.addPicture({200, 100}, kRed);
  show.start();
  at(kFirstPictureMs + 1950, [&] {
    EXPECT_GT(Channel(show.screenAt(160, 120), 2), 240);
    EXPECT_NE(show.screenAt(160, 120), kRedPixel);
  });
  at(kFirstPictureMs + 2020, [&] { EXPECT_EQ(show.screenAt(160, 120), kRedPixel); });
  run();
}

TEST_F(FormCrossfade, ACrossfadeBetweenSizesFadesTheRestIntoTheBackground) {
  show.set("extras/change", "crossfade");
  show.addPicture({200, 40}, kRed);
  show.addPicture({40, 200}, kGreen);
  show.start();
  at(kFirstPictureMs + 700 + 1000 + 350, [&] {
    EXPECT_NEAR(Channel(show.screenAt(70, 120), 2), 180, 20) << "half gone";
    EXPECT_NEAR(Channel(show.screenAt(160, 30), 1), 180, 20) << "half there";
  });
  at(kFirstPictureMs + 700 + 1000 + 750, [&] {
    EXPECT_EQ(show.screenAt(70, 120), kBlackPixel);
    EXPECT_EQ(show.screenAt(160, 30), kGreenPixel);
  });
  run();
}

TEST_F(FormCrossfade, DuringACrossfadeNoCaptionHangsOverAPicture) {
  show.set("extras/change", "crossfade");
  show.addPicture({200, 100}, kRed, "first");
  show.addPicture({200, 100}, kGreen, "second");
  show.start();
  at(kFirstPictureMs + 350, [&] { EXPECT_FALSE(show.form->Label1.visible()); });
  at(kFirstPictureMs + 750, [&] {
    EXPECT_TRUE(show.form->Label1.visible());
    EXPECT_EQ(show.form->Label1.caption(), "first");
  });
  at(kFirstPictureMs + 700 + 1000 + 350, [&] { EXPECT_FALSE(show.form->Label1.visible()); });
  at(kFirstPictureMs + 700 + 1000 + 750, [&] { EXPECT_EQ(show.form->Label1.caption(), "second"); });
  run();
}

TEST_F(FormCrossfade, WithoutAnimationsACrossfadeIsAPlainChange) {
  show.set("extras/change", "crossfade");
  show.screen.animations = false;
  show.addPicture({200, 100}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  EXPECT_EQ(show.screenAt(160, 120), kRedPixel);
}

TEST_F(FormCrossfade, ABrokenPictureFadesIntoTheBackground) {
  show.set("extras/change", "crossfade");
  show.addPicture({200, 100}, kRed);
  show.pictures.addBroken("C:\\pictures\\1.jpg", {100, 100});
  show.set("images/1", "C:\\pictures\\1.jpg");
  show.set("caption/1", "");
  show.set("total/total", "2");
  show.start();
  at(kFirstPictureMs + 700 + 1000 + 350, [&] { EXPECT_NEAR(Channel(show.screenAt(160, 120), 2), 180, 20); });
  at(kFirstPictureMs + 700 + 1000 + 750, [&] { EXPECT_EQ(show.screenAt(160, 120), kBlackPixel); });
  run();
}

TEST_F(FormCrossfade, ADirectChangeRunsAnEffectOverTheAreaOfBothPictures) {
  show.set("extras/change", "direct");
  show.set("extras/transitionTime", "1000");
  show.set("transitions/bLeftWipe", "1");
  show.addPicture({200, 40}, kRed);
  show.addPicture({40, 200}, kGreen);
  show.start();
  at(kFirstPictureMs + 1000 + 1000 + 500, [&] {
    // The area of both is 200 pixels wide; half of it has been wiped.
    EXPECT_EQ(show.screenAt(70, 120), kBlackPixel) << "the old picture is gone here";
    EXPECT_EQ(show.screenAt(250, 120), kRedPixel) << "and still there";
    EXPECT_EQ(show.screenAt(150, 30), kGreenPixel) << "half of the new one has come";
    EXPECT_EQ(show.screenAt(175, 30), kBlackPixel);
  });
  at(kFirstPictureMs + 1000 + 1000 + 1100, [&] {
    EXPECT_EQ(show.screenAt(250, 120), kBlackPixel);
    EXPECT_EQ(show.screenAt(175, 30), kGreenPixel);
    EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{140, 20, 40, 200}));
  });
  run();
}

TEST_F(FormCrossfade, AScreenThatChangesDuringACrossfadeGetsThePictureAnew) {
  show.set("extras/fit", "fill");
  show.set("extras/change", "crossfade");
  show.addPicture({640, 480}, kRed);
  show.start();
  at(kFirstPictureMs + 300, [&] {
    show.screen.size = {480, 360};
    show.form->ScreenChanged();
  });
  at(kFirstPictureMs + 400, [] {});
  run();
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{0, 0, 480, 360}));
  EXPECT_EQ(show.screenAt(479, 359), kRedPixel);
  EXPECT_TRUE(show.errors.empty());
}

TEST_F(FormCrossfade, OfACrossfadeForAnotherScreenNothingIsSeenOnTheNewOne) {
  show.set("extras/fit", "fill");
  show.set("extras/change", "crossfade");
  show.addPicture({640, 480}, kRed);
  show.start();
  bool looked = false;
  at(kFirstPictureMs + 300, [&] {
    ASSERT_NE(show.screenAt(100, 100), kBlackPixel);
    ASSERT_NE(show.screenAt(100, 100), kRedPixel);
    show.screen.size = {480, 360};
    show.form->ScreenChanged();
    EXPECT_EQ(show.screenAt(100, 100), kBlackPixel);
    looked = true;
  });
  run();
  EXPECT_TRUE(looked);
}

TEST_F(FormCrossfade, AShowThatEndsInACrossfadeTouchesNothingMore) {
  show.set("extras/change", "crossfade");
  show.addPicture({200, 100}, kRed);
  show.addPicture({200, 100}, kGreen);
  show.start();
  at(kFirstPictureMs + 700 + 1000 + 300, [&] {
    show.form->unload();
    show.window.presented.clear();
  });
  run();
  show.runFor(2000);
  EXPECT_TRUE(show.window.presented.empty());
  EXPECT_TRUE(show.errors.empty());
}

}  // namespace
}  // namespace saver
