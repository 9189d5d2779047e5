#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/show_stage.h"

namespace {

using support::kRed;
using support::ShowStage;

TEST(Background, TheDesktopIsCopiedBeforeTheWindowCoversItAndOnlyWhenItIsWanted) {
  ShowStage plain;
  plain.start();
  EXPECT_EQ(plain.screen.desktopCopies, 0);
  ShowStage desktop;
  desktop.set("background/backEffect", "1");
  desktop.start();
  EXPECT_EQ(desktop.screen.desktopCopies, 1);
  EXPECT_EQ(desktop.screenAt(100, 100), 0xFF204060U);
}

TEST(Background, AGradientRunsFromItsColourToBlackAndRescalesTheFormForPointers) {
  ShowStage show;
  show.set("background/backEffect", "3");
  show.set("background/redBackground", "255");
  show.start();
  EXPECT_EQ(show.screenAt(0, 0), 0xFFFF0000U);
  EXPECT_EQ(show.screenAt(1023, 767), 0xFF000000U);
  EXPECT_FLOAT_EQ(show.form->scaleHeight(), 256);
  EXPECT_FLOAT_EQ(show.form->height(), 768 * 15) << "controls stay placed in twips";
}

TEST(Background, ABadPictureLeavesTheWindowsOwnBackgroundWithoutAMessage) {
  ShowStage show;
  show.set("background/backEffect", "2");
  show.set("background/backgroundImage", "C:\\gone.jpg");
  show.start();
  show.runFor(1000);
  EXPECT_TRUE(show.errors.empty());
  EXPECT_EQ(show.screenAt(5, 5), 0xFF000000U);
}

TEST(Background, ATileLargerThanTheScreenIsCutAtItsEdges) {
  ShowStage show;
  show.set("background/backEffect", "2");
  show.set("background/backgroundDisplay", "2");
  show.set("background/backgroundImage", "C:\\big.bmp");
  show.pictures.add("C:\\big.bmp", {2000, 1500}, base::Rgb(0, 255, 0));
  show.start();
  EXPECT_EQ(show.screenAt(0, 0), 0xFF00FF00U);
  EXPECT_EQ(show.screenAt(1023, 767), 0xFF00FF00U);
}

TEST(Background, IsWhatAnOldPictureGivesWayTo) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({60, 50}, kRed);
  show.set("background/backEffect", "3");
  show.set("background/greenBackground", "200");
  show.start();
  const base::Pixel behind = show.screenAt(512, 384);
  base::Pixel inThePause = 0;
  show.loop.postAfter(500 + 1000 + 100, [&] { inThePause = show.screenAt(512, 384); });
  show.runFor(2000);
  EXPECT_EQ(inThePause, behind);
}

}  // namespace
