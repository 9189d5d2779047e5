#include <gtest/gtest.h>

#include "support/show_stage.h"

namespace {

using support::ShowStage;

constexpr base::PackedColor kRed = base::Rgb(255, 0, 0);

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

TEST(Floating, DriftsOnePixelATickAtItsSpeedAndKeepsItsDirectionAcrossAChange) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kRed);
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "5");
  show.set("image/timeInterval", "2");
  show.start();
  show.runFor(500);
  EXPECT_EQ(show.form->FloatTimer.interval(), 10);
  const float left = show.form->DisplayingPicture.left();
  const float top = show.form->DisplayingPicture.top();
  EXPECT_FLOAT_EQ(left, (1024 - 100) * 15 / 2) << "the first picture starts in the middle";
  show.runFor(100);
  const float dx = show.form->DisplayingPicture.left() - left;
  const float dy = show.form->DisplayingPicture.top() - top;
  EXPECT_FLOAT_EQ(std::abs(dx), 150);
  EXPECT_FLOAT_EQ(std::abs(dy), 150);
  show.runFor(1900 + 310);  // to the end of the next change
  const float after = show.form->DisplayingPicture.left();
  show.runFor(100);
  EXPECT_FLOAT_EQ(show.form->DisplayingPicture.left() - after, dx);
}

TEST(Floating, StandsStillWhileAChangeIsUnderWay) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kRed);
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "5");
  show.set("transitions/bLeftWipe", "1");
  show.set("extras/transitionTime", "1000");
  show.start();
  // The first change ends at 1500 ms; the second begins a second later and takes 2.3 seconds.
  std::vector<float> lefts;
  for (int at = 2600; at < 4700; at += 300) {
    show.loop.postAfter(at, [&] { lefts.push_back(show.form->DisplayingPicture.left()); });
  }
  show.runFor(5500);
  ASSERT_EQ(lefts.size(), 7U);
  EXPECT_EQ(lefts, std::vector<float>(7, lefts.front()));
  EXPECT_NE(show.form->DisplayingPicture.left(), lefts.front()) << "it drifts on after the change";
}

TEST(Floating, ASpeedThatIsNoneOfTheTableLeavesAHundredMilliseconds) {
  for (const char* speed : {"6", "-1", "", "fast", "2.5"}) {
    ShowStage show;
    show.addPicture({100, 80}, kRed);
    show.set("image/picRandom", "rand");
    show.set("image/picSpeed", speed);
    show.start();
    show.runFor(600);
    EXPECT_EQ(show.form->FloatTimer.interval(), 100) << speed;
    EXPECT_TRUE(show.errors.empty()) << speed;
  }
}

TEST(Floating, ALaterChangeBeginsWithOneMoreMove) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kRed);
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "2");
  show.set("image/timeInterval", "1.05");  // half way between two moves
  show.start();
  show.runFor(500 + 1049);
  const float left = show.form->DisplayingPicture.left();
  float retiring = 0;
  show.loop.postAfter(100, [&] { retiring = show.form->DisplayingPicture.left(); });
  show.runFor(101);
  EXPECT_FLOAT_EQ(std::abs(retiring - left), 15);
}

TEST(Floating, IsForEveryTextButCentInItsOwnLetters) {
  for (const char* text : {"Cent", "CENT", "rand", "centre", "0"}) {
    ShowStage show;
    show.addPicture({100, 80}, kRed);
    show.set("image/picRandom", text);
    show.start();
    show.runFor(600);
    EXPECT_TRUE(show.form->FloatTimer.enabled()) << text;
  }
}

TEST(Floating, IsNotForAnEmptyTextWhichIsTheDefault) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.set("image/picRandom", "");
  show.start();
  show.runFor(600);
  EXPECT_FALSE(show.form->FloatTimer.enabled());
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{462, 344, 100, 80}));
}

// What a picture is that gives the box no width, or hardly any.
struct Slip {
  const char* what;
  base::PixelSize size;
  const char* percent;
};

class FloatingWithoutAPicture : public testing::TestWithParam<Slip> {};

TEST_P(FloatingWithoutAPicture, NeverEndsTheShow) {
  for (const int dpi : {96, 120}) {
    ShowStage show({1024, 768}, dpi);
    if (GetParam().size.isEmpty()) {
      show.set("images/0", "C:\\gone.jpg");
      show.set("total/total", "1");
    } else {
      show.addPicture(GetParam().size, kRed);
    }
    show.set("image/picturePercent", GetParam().percent);
    show.set("image/picRandom", "rand");
    show.set("image/picSpeed", "5");
    show.start();
    show.runFor(500);
    const float left = show.form->DisplayingPicture.left();
    show.runFor(100);
    EXPECT_FLOAT_EQ(std::abs(show.form->DisplayingPicture.left() - left), dpi == 96 ? 150.0F : 120.0F);
    show.runFor(10000);
    EXPECT_EQ(show.errors, std::vector<std::string>{}) << GetParam().what;
    EXPECT_FALSE(show.form->isOver());
  }
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, FloatingWithoutAPicture,
    testing::Values(Slip{"a missing file", {}, "90"}, Slip{"a file missing at no size", {}, "0"},
                    Slip{"a line upright", {1, 5000}, "90"}, Slip{"a line lying", {5000, 1}, "90"},
                    Slip{"a dot", {1, 1}, "90"}, Slip{"no share of the screen", {300, 200}, "0"},
                    Slip{"no share of the screen, upright", {200, 300}, "0"},
                    Slip{"less than none", {300, 200}, "-10"}),
    [](const auto& slip) {
      std::string name = slip.param.what;
      std::erase_if(name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; });
      return name;
    });

TEST(Floating, APictureAfterAMissingOneStandsInTheMiddleOfNothingAndDrifts) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kRed);
  show.set("images/0", "C:\\gone.jpg");
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "5");
  show.start();
  show.runFor(500 + 1000 + 400);
  const base::PixelRect place = show.form->DisplayingPicture.pixelRect();
  EXPECT_EQ(place.size(), (base::PixelSize{100, 80}));
  EXPECT_TRUE(show.errors.empty());
  show.runFor(200);
  EXPECT_NE(show.form->DisplayingPicture.pixelRect(), place);
}

TEST(Floating, ACentredPictureNeverFloats) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kRed);
  show.start();
  show.runFor(5000);
  EXPECT_FALSE(show.form->FloatTimer.enabled());
  EXPECT_EQ(show.form->FloatTimer.interval(), 100);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{462, 344, 100, 80}));
}

TEST(Floating, StaysInsideTheScreenAndBelowTheCaptionBandForAQuarterOfAnHour) {
  ShowStage show({320, 240});
  show.addPicture({100, 80}, kRed, "Lake");
  show.addPicture({60, 90}, kRed);
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "5");
  show.set("image/timeInterval", "7");
  show.start();
  show.runFor(500);
  for (int i = 0; i < 9000; ++i) {
    show.runFor(100);
    const forms::PictureBox& box = show.form->DisplayingPicture;
    ASSERT_GE(box.left(), -15);
    ASSERT_GE(box.top(), show.form->captionHeight() - 15);
    ASSERT_LE(box.left() + box.width(), 320 * 15 + 15);
    ASSERT_LE(box.top() + box.height(), 240 * 15 + 15);
  }
}

TEST(Clock, ShowsThePresentMomentInTheBottomRightCorner) {
  ShowStage show;
  show.set("image/timeDisplay", "1");
  show.clock.set({2026, 11, 21, 13, 5, 9, 0});
  show.start();
  show.runFor(100);
  EXPECT_EQ(show.form->time.caption(), "11/21/2026 1:05:09 PM");
  const base::PixelRect place = show.form->time.pixelRect();
  EXPECT_EQ(place.bottom(), 768);
  EXPECT_LE(place.right(), 1024);
  show.runFor(1000);
  EXPECT_EQ(show.form->time.caption(), "11/21/2026 1:05:10 PM");
}

TEST(Clock, RepaintsOnlyWhenItsTextChanges) {
  ShowStage show;
  show.set("image/timeDisplay", "1");
  show.set("image/timeInterval", "0");
  show.start();
  show.runFor(2050);
  show.window.presented.clear();
  show.runFor(5000);
  EXPECT_EQ(show.window.presented.size(), 5U);
}

TEST(Clock, IsSetInItsOwnFontAndTheCaptionsColour) {
  ShowStage show;
  show.set("image/timeDisplay", "1");
  show.set("font/newFontForeColor", "255");
  show.set("font/newFontName", "Georgia");
  show.start();
  show.runFor(100);
  EXPECT_EQ(show.form->time.font(), (base::Font{.name = "MS Sans Serif", .sizePoints = 13.5F}));
  EXPECT_EQ(show.form->time.foreColor(), kRed);
  const base::PixelRect place = show.form->time.pixelRect();
  EXPECT_EQ(show.screenAt(place.left, place.top), 0xFFFF0000U);
}

TEST(Clock, IsOffForEveryNumberButOneAndTwo) {
  for (const char* number : {"3", "-1", "0.4", "1000"}) {
    ShowStage show;
    show.set("image/timeDisplay", number);
    show.start();
    show.runFor(2000);
    EXPECT_FALSE(show.form->time.visible()) << number;
    EXPECT_FALSE(show.form->timeTimer.enabled()) << number;
    EXPECT_FLOAT_EQ(show.form->time.width(), 0) << number;
    EXPECT_TRUE(show.errors.empty()) << number;
  }
}

TEST(Clock, OffMeansInvisibleWithoutSizeAndNothingUpdated) {
  ShowStage show;
  show.set("image/timeDisplay", "0");
  show.start();
  show.runFor(2000);
  EXPECT_FALSE(show.form->time.visible());
  EXPECT_FLOAT_EQ(show.form->time.width(), 0);
  EXPECT_FLOAT_EQ(show.form->time.height(), 0);
  EXPECT_FALSE(show.form->timeTimer.enabled());
}

TEST(Clock, TheCountdownsRightEdgeStaysOnTheScreenToItsEnd) {
  ShowStage show;
  show.set("image/timeDisplay", "2");
  show.set("image/timeInterval", "0");
  show.set("date/countdownMonth", "11");
  show.set("date/countdownDay", "22");
  show.clock.set({2026, 11, 21, 21, 30, 0, 500});
  show.start();
  show.runFor(100);
  EXPECT_EQ(show.form->time.caption(), "0days  2hours  29minutes  60seconds  ");
  while (show.form->timeTimer.enabled()) {
    show.runFor(900);
    ASSERT_LE(show.form->time.pixelRect().right(), 1024) << show.form->time.caption();
  }
  EXPECT_EQ(show.form->time.caption(), "-1days  23hours  59minutes  60seconds  ")
      << "the text of the last tick that was not past the target stays";
}

TEST(Clock, ATargetThatIsPastLeavesTheLabelEmpty) {
  ShowStage show;
  show.set("image/timeDisplay", "2");
  show.set("date/countdownYear", "2020");
  show.start();
  show.runFor(1000);
  EXPECT_EQ(show.form->time.caption(), "");
  EXPECT_FALSE(show.form->timeTimer.enabled());
  EXPECT_TRUE(show.errors.empty());
}

TEST(Clock, AnImpossibleDateEndsTheShowAtTheFirstTick) {
  ShowStage show;
  show.set("image/timeDisplay", "2");
  show.set("date/countdownMonth", "02");
  show.set("date/countdownDay", "30");
  show.start();
  EXPECT_TRUE(show.errors.empty());
  show.runFor(100);
  EXPECT_EQ(show.errors, std::vector<std::string>{"type mismatch"});
}

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
