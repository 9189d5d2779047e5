// The looks that go beyond the documented one, in the real show.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "support/noise.h"
#include "support/show_stage.h"

namespace saver {
namespace {

using base::Pixel;
using support::Channel;
using support::ShowStage;

constexpr Pixel kBlack = 0xFF000000;
constexpr base::PackedColor kRed = 0x0000FF;
constexpr base::PackedColor kGreen = 0x00FF00;
constexpr Pixel kRedPixel = 0xFFFF0000;
constexpr Pixel kGreenPixel = 0xFF00FF00;

constexpr int kFirstPictureMs = 500;
constexpr int kFrameMs = 17;

// The screen at every frame of a time that begins now, in the middle of changes too.
std::vector<base::Bitmap> ScreensWhile(ShowStage& show, int ms) {
  std::vector<base::Bitmap> screens;
  for (int at = kFrameMs; at <= ms; at += kFrameMs) {
    show.loop.postAfter(at, [&] { screens.push_back(show.window.screen); });
  }
  show.runFor(ms + kFrameMs);
  return screens;
}

// The largest difference of a channel between two screens.
int Difference(const base::Bitmap& a, const base::Bitmap& b) {
  int largest = 0;
  for (int y = 0; y < a.size().height; ++y) {
    for (int x = 0; x < a.size().width; ++x) {
      for (int c = 0; c < 3; ++c)
        largest = std::max(largest, std::abs(Channel(a.at(x, y), c) - Channel(b.at(x, y), c)));
    }
  }
  return largest;
}

// A picture whose every channel rises smoothly, so that a move by a pixel changes a level by little.
base::Bitmap Slope(base::PixelSize size) {
  base::Bitmap slope(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const auto red = static_cast<Pixel>(x * 255 / size.width);
      const auto blue = static_cast<Pixel>(y * 255 / size.height);
      slope.row(y)[x] = 0xFF000000U | red << 16 | blue;
    }
  }
  slope.setOpaque(true);
  return slope;
}

class FormLook : public testing::Test {
 protected:
  void addPixels(const std::string& number, base::Bitmap pixels) {
    show.pictures.add("C:\\pictures\\" + number + ".jpg", std::move(pixels));
    show.set("images/" + number, "C:\\pictures\\" + number + ".jpg");
    show.set("caption/" + number, "");
    show.set("total/total", std::to_string(std::stoi(number) + 1));
  }

  // Looks at the show so many milliseconds after its start, in the middle of a change too.
  void at(int ms, std::function<void()> look) {
    show.loop.postAfter(ms, std::move(look));
    lastMs_ = std::max(lastMs_, ms);
  }
  void run() { show.runFor(lastMs_ + 1); }

  ShowStage show{{320, 240}};

 private:
  int lastMs_ = 0;
};

TEST_F(FormLook, AWholePictureIsEnlargedWithinItsShareOfTheScreen) {
  show.set("extras/fit", "whole");
  show.addPicture({400, 200}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  // 90 of 100 parts of 320: 288 x 144 in the middle.
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{16, 48, 288, 144}));
  EXPECT_EQ(show.screenAt(16, 48), kRedPixel);
  EXPECT_EQ(show.screenAt(303, 191), kRedPixel);
  EXPECT_EQ(show.screenAt(15, 48), kBlack);
  EXPECT_EQ(show.screenAt(16, 47), kBlack);
}

TEST_F(FormLook, ASmallWholePictureIsShownAtTwiceItsSize) {
  show.set("extras/fit", "whole");
  show.addPicture({60, 40}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{100, 80, 120, 80}));
}

TEST_F(FormLook, AFillingPictureCoversTheScreenAndIsCutEvenly) {
  show.set("extras/fit", "fill");
  base::Bitmap picture({320, 320}, kRedPixel);
  base::FillRect(picture.view(), {0, 40, 320, 240}, kGreenPixel);
  picture.setOpaque(true);
  addPixels("0", picture);
  show.start();
  show.runFor(kFirstPictureMs);
  for (const base::PixelPoint corner : {base::PixelPoint{0, 0}, {319, 0}, {0, 239}, {319, 239}}) {
    EXPECT_EQ(show.screenAt(corner.x, corner.y), kGreenPixel);
  }
}

TEST_F(FormLook, FloatingPicturesKeepTheirDocumentedSize) {
  show.set("extras/fit", "fill");
  show.set("extras/surround", "blur");
  show.set("extras/panZoom", "8");
  show.set("image/picRandom", "float");
  show.addPicture({100, 50}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect().size(), (base::PixelSize{100, 50}));
  EXPECT_EQ(show.screenAt(0, 0), kBlack);
}

TEST_F(FormLook, ASurroundLeavesNoBar) {
  show.set("extras/fit", "whole");
  show.set("extras/surround", "blur");
  show.addPicture({100, 300}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{0, 0, 320, 240}));
  EXPECT_EQ(show.screenAt(160, 120), kRedPixel);
  EXPECT_EQ(show.screenAt(0, 0), 0xFF7F0000U);
  EXPECT_EQ(show.screenAt(319, 239), 0xFF7F0000U);
}

TEST_F(FormLook, APictureOfTheDocumentedSizeHasASurroundToo) {
  show.set("extras/surround", "blur");
  show.addPicture({100, 60}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  EXPECT_EQ(show.screenAt(110, 90), kRedPixel);
  EXPECT_EQ(show.screenAt(109, 90), 0xFF7F0000U);
  EXPECT_EQ(show.screenAt(209, 149), kRedPixel);
}

TEST_F(FormLook, TheEffectsWorkOnTheComposedScreen) {
  show.set("extras/surround", "blur");
  show.set("extras/transitionTime", "1000");
  show.set("transitions/bLeftWipe", "1");
  show.addPicture({100, 60}, kRed);
  show.start();
  at(kFirstPictureMs + 500, [&] {
    EXPECT_EQ(show.screenAt(20, 20), 0xFF7F0000U) << "wiped in already, far from the picture itself";
    EXPECT_EQ(show.screenAt(300, 20), kBlack);
  });
  run();
}

TEST_F(FormLook, ACrossfadeGoesStraightFromOnePictureToTheNext) {
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

TEST_F(FormLook, ACrossfadeTakesTheTransitionTime) {
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

TEST_F(FormLook, ACrossfadeBetweenSizesFadesTheRestIntoTheBackground) {
  show.set("extras/change", "crossfade");
  show.addPicture({200, 40}, kRed);
  show.addPicture({40, 200}, kGreen);
  show.start();
  at(kFirstPictureMs + 700 + 1000 + 350, [&] {
    EXPECT_NEAR(Channel(show.screenAt(70, 120), 2), 180, 20) << "half gone";
    EXPECT_NEAR(Channel(show.screenAt(160, 30), 1), 180, 20) << "half there";
  });
  at(kFirstPictureMs + 700 + 1000 + 750, [&] {
    EXPECT_EQ(show.screenAt(70, 120), kBlack);
    EXPECT_EQ(show.screenAt(160, 30), kGreenPixel);
  });
  run();
}

TEST_F(FormLook, DuringACrossfadeNoCaptionHangsOverAPicture) {
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

TEST_F(FormLook, WithoutAnimationsACrossfadeIsAPlainChange) {
  show.set("extras/change", "crossfade");
  show.screen.animations = false;
  show.addPicture({200, 100}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  EXPECT_EQ(show.screenAt(160, 120), kRedPixel);
}

TEST_F(FormLook, ABrokenPictureFadesIntoTheBackground) {
  show.set("extras/change", "crossfade");
  show.addPicture({200, 100}, kRed);
  show.pictures.addBroken("C:\\pictures\\1.jpg", {100, 100});
  show.set("images/1", "C:\\pictures\\1.jpg");
  show.set("caption/1", "");
  show.set("total/total", "2");
  show.start();
  at(kFirstPictureMs + 700 + 1000 + 350, [&] { EXPECT_NEAR(Channel(show.screenAt(160, 120), 2), 180, 20); });
  at(kFirstPictureMs + 700 + 1000 + 750, [&] { EXPECT_EQ(show.screenAt(160, 120), kBlack); });
  run();
}

TEST_F(FormLook, ADirectChangeRunsAnEffectOverTheAreaOfBothPictures) {
  show.set("extras/change", "direct");
  show.set("extras/transitionTime", "1000");
  show.set("transitions/bLeftWipe", "1");
  show.addPicture({200, 40}, kRed);
  show.addPicture({40, 200}, kGreen);
  show.start();
  at(kFirstPictureMs + 1000 + 1000 + 500, [&] {
    // The area of both is 200 pixels wide; half of it has been wiped.
    EXPECT_EQ(show.screenAt(70, 120), kBlack) << "the old picture is gone here";
    EXPECT_EQ(show.screenAt(250, 120), kRedPixel) << "and still there";
    EXPECT_EQ(show.screenAt(150, 30), kGreenPixel) << "half of the new one has come";
    EXPECT_EQ(show.screenAt(175, 30), kBlack);
  });
  at(kFirstPictureMs + 1000 + 1000 + 1100, [&] {
    EXPECT_EQ(show.screenAt(250, 120), kBlack);
    EXPECT_EQ(show.screenAt(175, 30), kGreenPixel);
    EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{140, 20, 40, 200}));
  });
  run();
}

TEST_F(FormLook, AGlidingPictureMovesAtEveryFrameAndNeverJumps) {
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

TEST_F(FormLook, TheGlidePassesIntoTheNextChangeWithoutAJump) {
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

TEST_F(FormLook, AGlideThatHasArrivedCostsNothing) {
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

TEST_F(FormLook, WithoutAnimationsPicturesStandStill) {
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

TEST_F(FormLook, TextsStayReadableOverAGlide) {
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

TEST_F(FormLook, AScreenThatChangesDuringACrossfadeGetsThePictureAnew) {
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

TEST_F(FormLook, OfACrossfadeForAnotherScreenNothingIsSeenOnTheNewOne) {
  show.set("extras/fit", "fill");
  show.set("extras/change", "crossfade");
  show.addPicture({640, 480}, kRed);
  show.start();
  bool looked = false;
  at(kFirstPictureMs + 300, [&] {
    ASSERT_NE(show.screenAt(100, 100), kBlack);
    ASSERT_NE(show.screenAt(100, 100), kRedPixel);
    show.screen.size = {480, 360};
    show.form->ScreenChanged();
    EXPECT_EQ(show.screenAt(100, 100), kBlack);
    looked = true;
  });
  run();
  EXPECT_TRUE(looked);
}

TEST_F(FormLook, AScreenThatChangesDuringAGlideGetsThePictureAnew) {
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

TEST_F(FormLook, AShowThatEndsInACrossfadeTouchesNothingMore) {
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

TEST_F(FormLook, ATransparentPictureGlidesWithTheBackgroundBehindIt) {
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("image/timeInterval", "5");
  show.set("background/newBackColor", "16711680");
  addPixels("0", base::Bitmap({640, 480}));
  show.start();
  show.runFor(kFirstPictureMs + 1000);
  EXPECT_EQ(show.screenAt(100, 100), 0xFF0000FFU);
}

TEST_F(FormLook, APictureThatCannotBeLoadedAfterAGlideShowsNothingOfTheOldOne) {
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("image/timeInterval", "2");
  show.addPicture({640, 480}, kRed);
  show.set("images/1", "C:\\pictures\\missing.jpg");
  show.set("caption/1", "");
  show.set("total/total", "2");
  show.start();
  show.runFor(kFirstPictureMs + 2000 + 300 + 500);
  EXPECT_EQ(show.screenAt(160, 120), kBlack);
}

}  // namespace
}  // namespace saver
