#include <gtest/gtest.h>

#include <algorithm>

#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "support/colors.h"

namespace {

using support::kRedPixel;
using support::kWhitePixel;

base::PixelRect Find(base::Pixel pixel) { return e2e::BoundsOf(e2e::ReadScreen(), pixel); }

TEST(Caption, MovesLeftByItsSpeedAndEntersAgainFromTheRight) {
  e2e::ProgramFolder folder;
  folder.set("image/timeInterval", "0");
  folder.set("font/scroll", "0");
  folder.set("font/scrollSpeed", "1500");  // 100 pixels ten times a second
  folder.addPicture({40, 40}, base::Rgb(255, 0, 0), "HHHH");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  // Two sights of the whole caption, the second further left by a whole number of steps.
  base::PixelRect first;
  ASSERT_TRUE(e2e::WaitFor([&] {
    first = Find(kWhitePixel);
    return !first.isEmpty() && first.right() < e2e::ScreenSize().width - 200;
  }));
  base::PixelRect second;
  ASSERT_TRUE(e2e::WaitFor([&] {
    second = Find(kWhitePixel);
    return !second.isEmpty() && second.left < first.left && second.left > 0;
  }));
  EXPECT_EQ((first.left - second.left) % 100, 0) << first.left << " " << second.left;
  EXPECT_EQ(first.top, second.top);
  ASSERT_TRUE(e2e::WaitFor([&] { return Find(kWhitePixel).left > e2e::ScreenSize().width / 2; }))
      << "the caption enters again";
}

TEST(Caption, StandsInTheMiddleOfTheTopOverThePicture) {
  e2e::ProgramFolder folder;
  folder.set("image/timeInterval", "0");
  folder.addPicture({400, e2e::ScreenSize().height}, base::Rgb(255, 0, 0), "HHHH");
  folder.set("image/picturePercent", "150");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  base::PixelRect text;
  ASSERT_TRUE(e2e::WaitFor([&] {
    text = Find(kWhitePixel);
    return !text.isEmpty();
  }));
  // The label is 200 twips wider than its text, which begins at its left edge.
  EXPECT_NEAR(text.left + text.width / 2, (e2e::ScreenSize().width - 13) / 2, 4);
  EXPECT_LT(text.bottom(), 60);
}

// It is at an edge for the ten milliseconds of one step, a pixel long; who reads the screen more slowly sees
// it near the edge only.
constexpr int kMissed = 3;

// Watches a floating picture until it has been at all that the caller asks for.
class FloatWatch {
 public:
  bool look() {
    const base::PixelRect place = Find(kRedPixel);
    if (place.isEmpty()) return false;
    lowestLeft = std::min(lowestLeft, place.left);
    lowestTop = std::min(lowestTop, place.top);
    highestRight = std::max(highestRight, place.right());
    highestBottom = std::max(highestBottom, place.bottom());
    return true;
  }

  int lowestLeft = 100000;
  int lowestTop = 100000;
  int highestRight = 0;
  int highestBottom = 0;
};

TEST(Floating, BouncesOffAllFourEdgesAndOffTheCaptionBand) {
  const base::PixelSize screen = e2e::ScreenSize();
  e2e::ProgramFolder folder;
  folder.set("image/timeInterval", "0");
  folder.set("image/picRandom", "rand");
  folder.set("image/picSpeed", "5");
  folder.set("font/newFontForeColor", "65280");
  folder.set("image/picturePercent", "99");
  // Almost as large as the screen, so that it meets every edge soon.
  folder.addPicture({screen.width - 60, screen.height - 120}, base::Rgb(255, 0, 0), "I");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  // The caption's own line height is the band; its glyph gives a lower bound for it.
  FloatWatch watch;
  EXPECT_TRUE(e2e::WaitFor(
      [&] {
        watch.look();
        return watch.lowestLeft <= kMissed && watch.highestRight >= screen.width - kMissed &&
               watch.highestBottom >= screen.height - kMissed && watch.lowestTop < 60;
      },
      60000))
      << watch.lowestLeft << " " << watch.lowestTop << " " << watch.highestRight << " "
      << watch.highestBottom;
  EXPECT_GT(watch.lowestTop, 20) << "it never rises into the caption band";
}

TEST(Clock, ChangesInTheBottomRightCorner) {
  e2e::ProgramFolder folder;
  folder.set("image/timeDisplay", "1");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  const base::PixelSize screen = e2e::ScreenSize();
  const auto corner = [&] {
    base::Bitmap cut({400, 60});
    base::CopyRect(cut.view(), {0, 0}, e2e::ReadScreen(), {screen.width - 400, screen.height - 60, 400, 60});
    return cut;
  };
  base::Bitmap first;
  ASSERT_TRUE(e2e::WaitFor([&] {
    first = corner();
    return !e2e::BoundsOf(first, kWhitePixel).isEmpty();
  }));
  EXPECT_TRUE(e2e::WaitFor([&] { return !(corner() == first); }, 4000));
}

}  // namespace
