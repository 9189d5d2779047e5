// What moves and what is written in the show in small: floating pictures, captions, clock and countdown.
#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "saver/miniature.h"
#include "support/miniature_desk.h"

namespace saver {
namespace {

constexpr base::PackedColor kWords = base::Rgb(10, 250, 30);

class MiniatureMoving : public testing::Test, protected support::MiniatureDesk {
 protected:
  MiniatureMoving() {
    settings["images/0"] = "C:\\0.jpg";
    settings["total/total"] = "1";
    settings["image/picturePercent"] = "30";
    settings["font/newFontForeColor"] = std::to_string(kWords);
    settings["font/newFontSize"] = "20";
    pictures.add("C:\\0.jpg", {1920, 1080}, base::Rgb(200, 0, 0));
  }

  void play() {
    miniature.play(view, {.settings = support::IniText(settings)});
    loop.runFor(300);
  }

  // How far the picture goes in two seconds, in pixels, as it is seen ten times a second.
  double wayOfPicture(const char* speed) {
    settings["image/picSpeed"] = speed;
    play();
    double way = 0;
    base::PixelRect before = miniature.picturePlace();
    for (int look = 0; look < 20; ++look) {
      loop.runFor(100);
      const base::PixelRect now = miniature.picturePlace();
      way += std::hypot(now.left - before.left, now.top - before.top);
      before = now;
    }
    return way;
  }

  // Where there are words in the upper or in the lower half; empty where there are none.
  base::PixelRect wordsIn(bool lowerHalf) const {
    const base::Bitmap& frame = *view.frame();
    base::PixelRect around;
    const int half = frame.size().height / 2;
    for (int y = lowerHalf ? half : 0; y < (lowerHalf ? 2 * half : half); ++y) {
      for (int x = 0; x < frame.size().width; ++x) {
        if (frame.at(x, y) != base::OpaquePixel(kWords)) continue;
        const int left = around.isEmpty() ? x : std::min(around.left, x);
        const int top = around.isEmpty() ? y : around.top;
        const int right = around.isEmpty() ? x + 1 : std::max(around.right(), x + 1);
        around = {left, top, right - left, y + 1 - top};
      }
    }
    return around;
  }

  Miniature miniature{machine.services()};
};

TEST_F(MiniatureMoving, APictureFloatsAtItsSpeed) {
  settings["image/picRandom"] = "rand";
  const double slow = wayOfPicture("0");
  const double fast = wayOfPicture("5");
  EXPECT_GT(slow, 3);
  EXPECT_GT(fast, slow * 2);
}

TEST_F(MiniatureMoving, ACaptionInTheMiddleStandsInItsColorThere) {
  settings["caption/0"] = "At the sea";
  settings["font/scroll"] = "1";
  play();
  const base::PixelRect words = wordsIn(false);
  ASSERT_FALSE(words.isEmpty());
  EXPECT_LE(std::abs(words.left + words.right() - view.frame()->size().width), 8);
  loop.runFor(1500);
  EXPECT_EQ(wordsIn(false), words);
}

TEST_F(MiniatureMoving, AScrollingCaptionGoesToTheLeftAtItsSpeed) {
  settings["caption/0"] = "At the sea";
  settings["font/scroll"] = "0";
  const auto wayOfWords = [&](const char* speed) {
    settings["font/scrollSpeed"] = speed;
    play();
    loop.runFor(1500);
    const int before = wordsIn(false).left;
    loop.runFor(500);
    return before - wordsIn(false).left;
  };
  const int slow = wayOfWords("100");
  const int fast = wayOfWords("300");
  EXPECT_GT(slow, 0);
  EXPECT_GT(fast, slow);
}

TEST_F(MiniatureMoving, ALargerFontIsSeenLarger) {
  settings["caption/0"] = "At the sea";
  settings["font/scroll"] = "1";
  play();
  const base::PixelRect words = wordsIn(false);
  settings["font/newFontSize"] = "40";
  play();
  EXPECT_GT(wordsIn(false).width, words.width * 3 / 2);
}

TEST_F(MiniatureMoving, ClockAndCountdownStandInTheCornerAndNothingWhereNothingIsChosen) {
  settings["date/countdownMonth"] = "12";
  settings["date/countdownDay"] = "24";
  settings["date/countdownYear"] = "2040";
  const auto wordsFor = [&](const char* display) {
    settings["image/timeDisplay"] = display;
    play();
    loop.runFor(1200);
    return wordsIn(true);
  };
  const base::PixelRect clockWords = wordsFor("1");
  const base::PixelRect countdown = wordsFor("2");
  ASSERT_FALSE(clockWords.isEmpty());
  ASSERT_FALSE(countdown.isEmpty());
  EXPECT_GT(clockWords.right(), view.frame()->size().width - 24);
  EXPECT_GT(countdown.right(), view.frame()->size().width - 24);
  EXPECT_NE(countdown.width, clockWords.width) << "other words";
  EXPECT_TRUE(wordsFor("0").isEmpty());
}

}  // namespace
}  // namespace saver
