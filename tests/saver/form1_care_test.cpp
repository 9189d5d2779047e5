// Care for the screen in the real show: [extras] care.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include "base/contrast.h"
#include "support/noise.h"
#include "support/show_stage.h"

namespace saver {
namespace {

constexpr base::PixelSize kScreen{320, 200};
constexpr base::PackedColor kPicture = base::Rgb(0, 0, 200);
constexpr base::PackedColor kYellow = base::Rgb(255, 255, 0);
constexpr int kMinuteMs = 60'000;
constexpr int kWidestBlankPixels = 20;  // behind a time that is not the widest that can come

// A picture that stays, with a caption over it and a clock in the corner, on black.
class Form1Care : public testing::Test {
 protected:
  Form1Care() {
    show.set("extras/care", "1");
    show.set("image/timeInterval", "0");
    show.set("font/newFontForeColor", std::to_string(kYellow));
  }
  void begin(base::PixelSize picture = {100, 60}, const std::string& caption = "words") {
    show.addPicture(picture, kPicture, caption);
    show.start();
    show.runFor(2000);
  }
  void pass(int minutes) { show.runFor(static_cast<std::int64_t>(minutes) * kMinuteMs); }

  // The smallest rectangle around a colour in a part of the screen.
  base::PixelRect find(base::PackedColor color, const base::PixelRect& part) const {
    base::PixelRect found;
    for (int y = part.top; y < part.bottom(); ++y) {
      for (int x = part.left; x < part.right(); ++x) {
        if (show.screenAt(x, y) == base::OpaquePixel(color)) found = found.united({x, y, 1, 1});
      }
    }
    return found;
  }
  base::PixelRect picture() const { return find(kPicture, base::PixelRect::ofSize(kScreen)); }
  base::PixelRect caption(base::PackedColor color = kYellow) const { return find(color, {0, 0, 320, 60}); }
  base::PixelRect clock(base::PackedColor color = kYellow) const { return find(color, {0, 140, 320, 60}); }

  static double Distance(const base::PixelRect& a, const base::PixelRect& b) {
    return std::hypot(a.left - b.left, a.top - b.top);
  }

  support::ShowStage show{kScreen};
  const base::PackedColor dimmed = base::WithShareOfLight(kYellow, 0.25);
};

TEST_F(Form1Care, WithoutTheKeyNothingMovesAndNothingDarkens) {
  show.set("extras/care", "");
  begin();
  const base::Bitmap before = show.window.screen;
  for (int i = 0; i < 15; ++i) {
    pass(1);
    EXPECT_TRUE(show.window.screen == before);
  }
}

TEST_F(Form1Care, CaptionAndClockMoveEveryMinuteAndAreNeverCutOff) {
  show.set("image/timeDisplay", "2");
  show.set("date/countdownYear", "2020");  // it has come: the text stays
  show.set("extras/care", "1");
  begin();
  std::set<std::pair<int, int>> captions;
  std::set<std::pair<int, int>> clocks;
  base::PixelRect words = caption();
  const base::PixelRect first = words;
  const base::PixelSize wordsSize = words.size();
  ASSERT_FALSE(words.isEmpty());
  for (int minute = 0; minute < 48; ++minute) {
    pass(1);
    const base::PackedColor color = minute < 9 ? kYellow : dimmed;
    const base::PixelRect now = caption(color);
    EXPECT_EQ(now.size(), wordsSize) << "minute " << minute;
    EXPECT_NE(now, words);
    EXPECT_LE(Distance(now, first), 2 * 24);
    EXPECT_LE(now.top, 24 + first.top);
    captions.insert({now.left, now.top});
    words = now;
  }
  EXPECT_GE(captions.size(), 20U);
}

TEST_F(Form1Care, TheClockMovesInwardsFromItsCornerAndStaysBright) {
  show.set("image/timeDisplay", "1");
  begin({100, 60}, "");
  int left = 320;
  for (int minute = 0; minute < 30; ++minute) {
    pass(1);
    const base::PixelRect now = clock();
    ASSERT_FALSE(now.isEmpty()) << "its text changes every second, so it never darkens";
    EXPECT_LE(now.right(), 320);
    EXPECT_GE(now.right(), 320 - 24 - kWidestBlankPixels);
    EXPECT_LE(now.bottom(), 200);
    EXPECT_GE(now.bottom(), 200 - 24 - 1);
    left = std::min(left, now.left);
  }
  EXPECT_LT(left, 320);
}

TEST_F(Form1Care, ACaptionAsWideAsTheScreenMovesDownAlone) {
  begin({100, 60}, std::string(60, 'w'));
  for (int minute = 0; minute < 24; ++minute) {
    pass(1);
    const base::PackedColor color = minute < 9 ? kYellow : dimmed;
    EXPECT_EQ(caption(color).left, 0);
    EXPECT_GE(caption(color).right(), 319);
  }
}

TEST_F(Form1Care, WordsAreDarkTenMinutesAfterTheyCameAndOthersAreBrightAtOnce) {
  show.set("image/timeInterval", "960");
  show.addPicture({100, 60}, kPicture, "one");
  show.addPicture({100, 60}, kPicture, "others");
  show.start();
  show.runFor(2000);
  pass(9);
  EXPECT_FALSE(caption().isEmpty());
  pass(2);
  EXPECT_TRUE(caption().isEmpty());
  EXPECT_FALSE(caption(dimmed).isEmpty());
  pass(5);
  show.runFor(2000);
  EXPECT_FALSE(caption().isEmpty()) << "the next one";
  EXPECT_TRUE(caption(dimmed).isEmpty());
  pass(8);
  EXPECT_FALSE(caption().isEmpty()) << "it has ten minutes of its own";
  pass(3);
  EXPECT_FALSE(caption(dimmed).isEmpty());
}

TEST_F(Form1Care, DarkWordsStayAsTheyAre) {
  const base::PackedColor grey = base::Rgb(80, 80, 80);
  show.set("font/newFontForeColor", std::to_string(grey));
  begin();
  pass(30);
  EXPECT_FALSE(caption(grey).isEmpty());
}

TEST_F(Form1Care, ACentredPictureMovesByAPixelOrTwo) {
  begin();
  const base::PixelRect middle{110, 70, 100, 60};
  std::set<std::pair<int, int>> places;
  for (int minute = 0; minute < 16; ++minute) {
    const base::PixelRect now = picture();
    EXPECT_EQ(now.size(), middle.size());
    EXPECT_LE(Distance(now, middle), 2);
    EXPECT_GE(Distance(now, middle), 1);
    places.insert({now.left, now.top});
    pass(1);
  }
  EXPECT_EQ(places.size(), 8U);
}

TEST_F(Form1Care, APictureThatCoversTheScreenUncoversNothing) {
  show.set("extras/fit", "fill");
  show.set("image/picturePercent", "99");
  begin({640, 400}, "");
  for (int minute = 0; minute < 9; ++minute) {
    EXPECT_EQ(picture(), base::PixelRect::ofSize(kScreen));
    pass(1);
  }
}

TEST_F(Form1Care, APictureThatGlidesStaysInTheMiddle) {
  show.set("image/timeInterval", "600");
  show.set("extras/fit", "whole");
  show.set("extras/panZoom", "10");
  begin({100, 60}, "");
  const base::PixelRect place = show.form->DisplayingPicture.pixelRect();
  EXPECT_EQ(place.left, (320 - place.width) / 2);
  pass(3);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), place);
}

TEST_F(Form1Care, FloatingPicturesKeepClearOfTheCaptionWhereverItStands) {
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "5");
  begin({100, 60});
  const int band = show.form->captionHeight() / 15 + kCareReach;
  int highest = 200;
  for (int i = 0; i < 600; ++i) {
    show.runFor(100);
    highest = std::min(highest, show.form->DisplayingPicture.pixelRect().top);
  }
  EXPECT_GE(highest, band - 2);
}

TEST_F(Form1Care, OnAnotherScreenNothingIsCutOffEither) {
  show.set("image/timeDisplay", "1");
  begin();
  pass(11);
  show.screen.size = {240, 160};
  show.form->ScreenChanged();
  show.runFor(1000);
  const base::PixelRect now = find(kYellow, {0, 100, 240, 60});
  EXPECT_FALSE(now.isEmpty());
  EXPECT_LE(now.right(), 240);
  EXPECT_GE(now.right(), 240 - 24 - kWidestBlankPixels);
}

TEST_F(Form1Care, StandsStillWithItsTimersWhenTheShowHasEnded) {
  begin();
  show.form->unload();
  EXPECT_EQ(show.loop.timersRunning(), 0);
}

}  // namespace
}  // namespace saver
