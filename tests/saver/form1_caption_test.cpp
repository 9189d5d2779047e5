#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/show_stage.h"

namespace {

using support::kRed;
using support::ShowStage;

TEST(Caption, APictureWithoutACaptionShowsALabelWithoutHeight) {
  ShowStage show;
  show.addPicture({100, 80}, kRed, "");
  show.start();
  show.runFor(600);
  EXPECT_EQ(show.form->Label1.caption(), "");
  EXPECT_FLOAT_EQ(show.form->Label1.height(), 0);
}

TEST(Caption, TheBandIsAsHighAsOneLineOfTheFirstRealCaption) {
  ShowStage show;
  show.addPicture({100, 80}, kRed, "");
  show.addPicture({100, 80}, kRed, "Lake");
  show.start();
  EXPECT_EQ(show.form->captionHeight(), 12 * 15);
}

TEST(Caption, OneBlankIsNoCaptionForTheBandButIsShownAsABlankLabel) {
  ShowStage show;
  show.addPicture({100, 80}, kRed, "\" \"");
  show.start();
  EXPECT_EQ(show.form->captionHeight(), 0);
  show.runFor(600);
  EXPECT_EQ(show.form->Label1.caption(), " ");
  EXPECT_GT(show.form->Label1.height(), 0);
}

TEST(Caption, IsInvisibleUntilTheFirstPicture) {
  ShowStage show;
  show.addPicture({100, 80}, kRed, "Lake");
  show.start();
  show.runFor(400);
  EXPECT_FALSE(show.form->Label1.visible());
  show.runFor(200);
  EXPECT_TRUE(show.form->Label1.visible());
}

TEST(Caption, StandsInTheMiddleForAnyScrollButZero) {
  ShowStage show;
  show.addPicture({100, 80}, kRed, "Lake");
  show.set("font/scroll", "7");
  show.start();
  show.runFor(600);
  const float width = 4 * 6 * 15 + 200;
  EXPECT_FLOAT_EQ(show.form->Label1.width(), width);
  EXPECT_FLOAT_EQ(show.form->Label1.left(), (1024 * 15 - width) / 2);
  EXPECT_FALSE(show.form->ScrollerTimer.enabled());
}

TEST(Caption, ScrollsFromBeyondTheRightEdgeByItsSpeedTenTimesASecond) {
  ShowStage show;
  show.addPicture({100, 80}, kRed, "Lake");
  show.set("font/scroll", "0");
  show.set("font/scrollSpeed", "150");
  show.set("image/timeInterval", "0");
  show.start();
  show.runFor(500);
  EXPECT_FLOAT_EQ(show.form->Label1.left(), 1024 * 15);
  show.runFor(1000);
  EXPECT_FLOAT_EQ(show.form->Label1.left(), 1024 * 15 - 1500);
}

TEST(Caption, WrapsOnlyWhenItsRightEndHasLeftTheScreen) {
  ShowStage show({320, 240});
  show.addPicture({10, 10}, kRed, std::string(100, 'x'));
  show.set("font/scroll", "0");
  show.set("font/scrollSpeed", "300");
  show.set("image/timeInterval", "0");
  show.start();
  float lowest = 0;
  for (int i = 0; i < 200; ++i) {
    show.runFor(100);
    lowest = std::min(lowest, show.form->Label1.left());
  }
  EXPECT_LE(lowest, -show.form->Label1.width() + 300);
  EXPECT_GE(lowest, -show.form->Label1.width());
}

TEST(Caption, TextThatIsNoNumberEndsTheShowForEachKeyThatNeedsOne) {
  for (const char* key : {"font/scrollSpeed", "font/scroll", "font/newFontForeColor"}) {
    ShowStage show;
    show.addPicture({100, 80}, kRed, "Lake");
    show.set("font/scroll", "0");
    show.set(key, "fast");
    show.start();
    show.runFor(1000);
    EXPECT_EQ(show.errors, std::vector<std::string>{"type mismatch"}) << key;
    EXPECT_TRUE(show.form->isOver()) << key;
  }
}

TEST(Caption, WithoutTextKeepsTheWidthThatEveryCaptionIsGiven) {
  ShowStage show;
  show.addPicture({100, 80}, kRed, "");
  show.start();
  show.runFor(600);
  EXPECT_FLOAT_EQ(show.form->Label1.width(), 200);
  EXPECT_TRUE(show.form->Label1.visible());
}

base::Font CaptionFont(const char* key, const char* value) {
  ShowStage show;
  show.set(std::string("font/") + key, value);
  show.start();
  return show.form->Label1.font();
}

TEST(Caption, TakesEachPropertyOfItsFontFromItsOwnSetting) {
  const base::Font plain{.name = "Arial", .sizePoints = 10};
  EXPECT_EQ(CaptionFont("scroll", "1"), plain);
  EXPECT_EQ(CaptionFont("newFontName", "Georgia"), (base::Font{.name = "Georgia", .sizePoints = 10}));
  EXPECT_EQ(CaptionFont("newFontSize", "12.75"), (base::Font{.name = "Arial", .sizePoints = 12.75F}));
  for (const char* yes : {"True", "true", "-1", "1"}) {
    EXPECT_EQ(CaptionFont("newFontBold", yes), (base::Font{.name = "Arial", .sizePoints = 10, .bold = true}));
    EXPECT_EQ(CaptionFont("newFontItalic", yes),
              (base::Font{.name = "Arial", .sizePoints = 10, .italic = true}));
    EXPECT_EQ(CaptionFont("newFontUnderline", yes),
              (base::Font{.name = "Arial", .sizePoints = 10, .underline = true}));
    EXPECT_EQ(CaptionFont("newFontFontStrikethru", yes),
              (base::Font{.name = "Arial", .sizePoints = 10, .strikethrough = true}));
  }
}

TEST(Caption, AFontPropertyOfATextThatStandsForNoneStaysAsItWas) {
  EXPECT_FALSE(CaptionFont("newFontBold", "perhaps").bold);
  EXPECT_EQ(CaptionFont("newFontSize", "large").sizePoints, base::Font{}.sizePoints);
}

}  // namespace
