#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "support/colors.h"

namespace {

using support::kBlackPixel;
using support::kBluePixel;
using support::kGreenPixel;
using support::kRedPixel;

base::PixelRect Centred(base::PixelSize size) {
  const base::PixelSize screen = e2e::ScreenSize();
  return {(screen.width - size.width) / 2, (screen.height - size.height) / 2, size.width, size.height};
}

// Reads the screen until a colour fills exactly that place.
testing::AssertionResult ComesToFill(base::Pixel pixel, const base::PixelRect& place) {
  base::PixelRect seen;
  const bool came = e2e::WaitFor([&] {
    seen = e2e::BoundsOf(e2e::ReadScreen(), pixel);
    return seen == place;
  });
  if (came) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "seen last at " << seen.left << ", " << seen.top << " of "
                                     << seen.width << " x " << seen.height << "; expected at " << place.left
                                     << ", " << place.top << " of " << place.width << " x " << place.height;
}

TEST(PictureCycle, ThreePicturesAppearInOrderCentredEachAtItsComputedSize) {
  e2e::ProgramFolder folder;
  folder.set("image/picturePercent", "50");
  folder.addPicture({600, 400}, base::Rgb(255, 0, 0));
  folder.addPicture({300, 500}, base::Rgb(0, 255, 0));
  // Wider than half of the screen: shrunk to exactly half its width.
  const base::PixelSize screen = e2e::ScreenSize();
  folder.addPicture({screen.width, screen.width / 4}, base::Rgb(0, 0, 255));
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(ComesToFill(kRedPixel, Centred({600, 400})));
  EXPECT_TRUE(ComesToFill(kGreenPixel, Centred({300, 500})));
  EXPECT_TRUE(ComesToFill(kBluePixel, Centred({screen.width / 2, screen.width / 8})));
  EXPECT_TRUE(ComesToFill(kRedPixel, Centred({600, 400}))) << "after the last picture comes the first";
  EXPECT_EQ(e2e::ScreenPixel(2, 2), kBlackPixel);
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
}

TEST(PictureCycle, ThePicturesOfTheDesignAppearWithTheirSizes) {
  const base::PixelSize screen = e2e::ScreenSize();
  // At 99 % a landscape picture under the limit keeps its size though it overruns the screen's height; a
  // portrait picture of the same sides is shrunk by its height.
  const base::PixelSize wide{screen.width * 97 / 100, screen.height * 115 / 100};
  const base::PixelSize high{screen.height, screen.height * 10 / 9};
  e2e::ProgramFolder folder;
  folder.set("image/picturePercent", "99");
  folder.addPicture(wide, base::Rgb(255, 0, 0));
  folder.addPicture(high, base::Rgb(0, 255, 0));
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(ComesToFill(kRedPixel, {(screen.width - wide.width) / 2, 0, wide.width, screen.height}));
  base::PixelRect green;
  EXPECT_TRUE(e2e::WaitFor([&] {
    green = e2e::BoundsOf(e2e::ReadScreen(), kGreenPixel);
    return green.width == screen.height * 99 * 9 / 1000;
  })) << green.width;
  EXPECT_NEAR(green.height, screen.height * 99 / 100, 1);
  EXPECT_TRUE(show.endsByKey());
}

TEST(PictureCycle, APictureThatCannotBeLoadedIsPassedOverInSilence) {
  e2e::ProgramFolder folder;
  folder.addPicture({200, 100}, base::Rgb(255, 0, 0));
  folder.set("images/1", "C:\\no such folder\\nothing.jpg");
  folder.set("caption/1", "");
  folder.set("total/total", "2");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(ComesToFill(kRedPixel, Centred({200, 100})));
  EXPECT_TRUE(ComesToFill(kRedPixel, {})) << "the missing picture's turn shows the background";
  EXPECT_TRUE(ComesToFill(kRedPixel, Centred({200, 100})));
  EXPECT_TRUE(show.isRunning());
  EXPECT_TRUE(show.endsByKey());
}

TEST(PictureCycle, WithNoPictureAtAllTheShowRunsAndEndsLikeAnyOther) {
  e2e::ProgramFolder folder;
  folder.set("background/newBackColor", "255");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(ComesToFill(kRedPixel, base::PixelRect::ofSize(e2e::ScreenSize())));
  EXPECT_TRUE(show.endsByKey());
}

}  // namespace
