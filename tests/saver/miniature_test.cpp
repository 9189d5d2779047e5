#include "saver/miniature.h"

#include <gtest/gtest.h>

#include <optional>

#include "support/miniature_desk.h"

namespace saver {
namespace {

constexpr base::PackedColor kRed = base::Rgb(200, 0, 0);
constexpr base::PackedColor kBlue = base::Rgb(0, 0, 200);

class MiniatureTest : public testing::Test, protected support::MiniatureDesk {
 protected:
  MiniatureTest() {
    addPicture({1920, 1080}, kRed);
    addPicture({1920, 1080}, kBlue);
    other.move(0, 0, 194 * 15, 110 * 15);
  }

  void addPicture(base::PixelSize size, base::PackedColor color) {
    const std::string number = std::to_string(count++);
    pictures.add("C:\\" + number + ".jpg", size, color);
    settings["images/" + number] = "C:\\" + number + ".jpg";
    settings["total/total"] = std::to_string(count);
  }

  MiniaturePlay what(bool changesAtOnce = false) {
    return {.settings = support::IniText(settings), .changesAtOnce = changesAtOnce};
  }
  void play(bool changesAtOnce = false) { miniature->play(view, what(changesAtOnce)); }
  void wipe() {
    settings["transitions/bLeftWipe"] = "1";
    settings["extras/transitionTime"] = "1000";
  }

  base::Pixel at(int x, int y) const { return view.frame() ? view.frame()->at(x, y) : 0; }
  bool isAt(base::PackedColor color, int x = 192, int y = 108) const {
    return at(x, y) == base::OpaquePixel(color);
  }

  // Columns of the middle row that have a colour.
  int columnsOf(base::PackedColor color) const {
    int columns = 0;
    for (int x = 0; x < view.frame()->size().width; ++x) columns += isAt(color, x) ? 1 : 0;
    return columns;
  }

  int count = 0;
  forms::LiveView other{form, "other"};
  std::optional<Miniature> miniature{std::in_place, machine.services()};
};

TEST_F(MiniatureTest, ItHasTheScreensShapeAndItsPictureWithinATenthOfASecond) {
  play();
  loop.runFor(100);
  ASSERT_TRUE(view.frame());
  EXPECT_EQ(view.frame()->size(), (base::PixelSize{384, 216}));
  EXPECT_TRUE(view.frame()->isOpaque());
  EXPECT_TRUE(isAt(kRed));
  EXPECT_EQ(miniature->shownPicture(), "C:\\0.jpg");
}

TEST_F(MiniatureTest, PicturesTakeTheShareOfTheScreenThatIsSet) {
  settings["image/picturePercent"] = "50";
  play();
  loop.runFor(100);
  EXPECT_EQ(columnsOf(kRed), 192);
}

TEST_F(MiniatureTest, ASmallPictureTakesTheShareThatItHasOnTheScreen) {
  pictures.add("C:\\0.jpg", {480, 270}, kRed);
  play();
  loop.runFor(100);
  EXPECT_EQ(columnsOf(kRed), 96);
}

TEST_F(MiniatureTest, PicturesFollowEachOtherWithTheirEffect) {
  wipe();
  play();
  loop.runFor(100);
  EXPECT_EQ(columnsOf(kRed), columnsOf(kRed) + columnsOf(kBlue)) << "the first one is there at once";
  EXPECT_GT(columnsOf(kRed), 300);
  bool seenHalf = false;
  for (int ms = 0; ms < 4000; ms += 50) {
    loop.postAfter(ms, [&] { seenHalf = seenHalf || (columnsOf(kBlue) > 50 && columnsOf(kBlue) < 250); });
  }
  loop.runFor(4200);
  EXPECT_TRUE(seenHalf);
}

TEST_F(MiniatureTest, AChangeCanBeSeenAtOnce) {
  settings["image/timeInterval"] = "60";
  wipe();
  play(true);
  bool beganAtOnce = false;
  loop.postAfter(150, [&] { beganAtOnce = columnsOf(kRed) > 250 && columnsOf(kRed) < 340; });
  loop.runFor(2600);
  EXPECT_TRUE(beganAtOnce) << "the first picture gives way";
  EXPECT_GT(columnsOf(kBlue), 300);
  EXPECT_EQ(miniature->shownPicture(), "C:\\1.jpg");
  loop.runFor(10000);
  EXPECT_GT(columnsOf(kBlue), 300) << "and the next one when it is due";
}

TEST_F(MiniatureTest, TheLastPlaysPictureStandsUntilTheNewOneIsThere) {
  play();
  loop.runFor(100);
  const base::SharedBitmap before = view.frame();
  workers.delayMs = [] { return std::optional(200); };
  settings["image/picturePercent"] = "50";
  settings["images/0"] = "C:\\1.jpg";
  play();
  base::SharedBitmap meanwhile;
  loop.postAfter(150, [&] { meanwhile = view.frame(); });
  loop.runFor(250);
  EXPECT_EQ(meanwhile, before);
  EXPECT_EQ(columnsOf(kBlue), 192);
}

TEST_F(MiniatureTest, APictureThatDoesNotComeHoldsThePlayUpForAMomentOnly) {
  play();
  loop.runFor(100);
  workers.delayMs = [] { return std::optional<int>(); };
  settings["background/newBackColor"] = "65280";
  settings["images/0"] = "C:\\1.jpg";
  play();
  bool backgroundSeen = false;
  loop.postAfter(400, [&] {
    backgroundSeen = isAt(base::Rgb(0, 255, 0));
    workers.comeBack();
  });
  loop.runFor(500);
  EXPECT_TRUE(backgroundSeen);
  EXPECT_TRUE(isAt(kBlue));
}

TEST_F(MiniatureTest, PicturesAreDecodedOnceForAnyNumberOfPlays) {
  for (int i = 0; i < 20; ++i) {
    play();
    loop.runFor(100);
  }
  EXPECT_EQ(pictures.drawnSizes.size(), 2U) << "the first and the second one";
  EXPECT_EQ(machine.loaders.size(), 1U);
}

TEST_F(MiniatureTest, AnotherViewHasAScreenOfItsOwnSize) {
  play();
  loop.runFor(100);
  miniature->play(other, what());
  EXPECT_EQ(miniature->view(), &other);
  loop.runFor(100);
  EXPECT_EQ(other.frame()->size(), (base::PixelSize{192, 108}));
  EXPECT_EQ(other.frame()->at(96, 54), base::OpaquePixel(kRed));
  EXPECT_EQ(machine.loaders.back().first, (base::PixelSize{192, 108}));
}

TEST_F(MiniatureTest, WhereNothingIsToMoveOnePictureStandsStill) {
  machine.screen.animations = false;
  settings["image/timeDisplay"] = "1";
  settings["font/scroll"] = "0";
  settings["image/picRandom"] = "rand";
  play(true);
  loop.runFor(200);
  EXPECT_TRUE(isAt(kRed));
  EXPECT_EQ(loop.timersRunning(), 0);
  const base::Bitmap still = *view.frame();
  loop.runFor(5000);
  EXPECT_EQ(*view.frame(), still);
}

TEST_F(MiniatureTest, WhenItIsStoppedNothingTicksAndItsPictureStays) {
  settings["image/timeDisplay"] = "1";
  play();
  loop.runFor(100);
  miniature->stop();
  EXPECT_EQ(loop.timersRunning(), 0);
  EXPECT_TRUE(isAt(kRed));
  EXPECT_EQ(miniature->shownPicture(), "C:\\0.jpg");
  EXPECT_FALSE(miniature->settings());
}

TEST_F(MiniatureTest, AnEffectThatIsUnderWayGivesWayToTheNextPlay) {
  wipe();
  play(true);
  loop.runFor(100);
  loop.postAfter(900, [this] {
    settings["image/picturePercent"] = "50";
    play();
  });
  loop.runFor(1020);
  EXPECT_EQ(columnsOf(kRed), 192);
}

TEST_F(MiniatureTest, APlayDoesNotWaitForAnEffectBelowAMessageBox) {
  wipe();
  play(true);
  loop.runFor(100);
  bool seen = false;
  loop.postAfter(900, [&] {
    settings["image/picturePercent"] = "50";
    play();
    loop.runFor(120);  // the events of the message box
    seen = columnsOf(kRed) == 192;
  });
  loop.runFor(3000);
  EXPECT_TRUE(seen);
}

TEST_F(MiniatureTest, AViewCanGoInTheMiddleOfAnEffect) {
  wipe();
  auto going = std::make_unique<forms::LiveView>(form, "going");
  going->move(0, 0, 386 * 15, 218 * 15);
  miniature->play(*going, what(true));
  loop.runFor(100);
  loop.postAfter(900, [&] {
    miniature->leave(*going);
    going.reset();
  });
  loop.runFor(5000);
  EXPECT_FALSE(miniature->view());
  EXPECT_EQ(loop.timersRunning(), 0);
}

TEST_F(MiniatureTest, ManyPlaysInAnEffectLeaveOne) {
  wipe();
  play(true);
  for (int i = 0; i < 200; ++i) {
    loop.postAfter(100 + 37 * i, [this, i] {
      settings["image/picturePercent"] = std::to_string(40 + i % 50);
      play(i % 3 != 0);
    });
  }
  loop.runFor(8000);
  settings["image/picturePercent"] = "50";
  play();
  loop.runFor(100);
  EXPECT_EQ(columnsOf(kRed), 192);
  miniature->stop();
  EXPECT_EQ(loop.timersRunning(), 0);
}

TEST_F(MiniatureTest, SettingsThatCannotBeUsedAreNoMessage) {
  loop.setErrorHandler([](const std::exception&) { FAIL() << "an error came out"; });
  for (const char* key : {"font/scrollSpeed", "background/newBackColor", "image/timeInterval", "font/scroll",
                          "font/newFontForeColor", "image/timeDisplay"}) {
    support::Settings before = settings;
    settings["font/scroll"] = "0";
    settings[key] = "x";
    play();
    loop.runFor(3000);
    settings = before;
  }
  play();
  loop.runFor(100);
  EXPECT_TRUE(isAt(kRed));
}

TEST_F(MiniatureTest, MissingPicturesLeaveTheBackground) {
  settings["images/0"] = "C:\\gone.jpg";
  settings["background/newBackColor"] = "65280";
  play();
  loop.runFor(100);
  EXPECT_TRUE(isAt(base::Rgb(0, 255, 0)));
  loop.runFor(1500);
  EXPECT_TRUE(isAt(kBlue));
}

TEST_F(MiniatureTest, NothingIsWrittenAndNothingRemembered) {
  settings["extras/resume"] = "1";
  settings["extras/log"] = "1";
  settings["firstrun/samples"] = "1";
  settings["folders/0"] = "C:\\folder";
  play();
  loop.runFor(5000);
  miniature.reset();
  EXPECT_TRUE(files.writes.empty());
}

TEST_F(MiniatureTest, TheDesktopIsCopiedOnceAndShownSmall) {
  machine.screen.desktop = base::Bitmap({1920, 1080}, 0xFF123456U);
  settings["background/backEffect"] = "1";
  settings["image/picturePercent"] = "50";
  for (int i = 0; i < 3; ++i) {
    play();
    loop.runFor(100);
  }
  EXPECT_EQ(at(3, 3), 0xFF123456U);
  EXPECT_EQ(machine.screen.desktopCopies, 1);
}

TEST_F(MiniatureTest, WordsAreLargeEnoughToBeRead) {
  play();
  loop.runFor(50);
  EXPECT_EQ(machine.wordDpi, std::vector<int>{38});
  machine.screen.size = {480, 270};
  machine.screen.dotsPerInch = 96;
  play();
  EXPECT_EQ(machine.wordDpi.back(), 75) << "near the real size they are to scale";
}

TEST_F(MiniatureTest, ItTellsWhereItsPictureStandsAndItsSettings) {
  settings["image/picturePercent"] = "50";
  EXPECT_TRUE(miniature->picturePlace().isEmpty());
  play();
  loop.runFor(100);
  EXPECT_EQ(miniature->picturePlace(), (base::PixelRect{96, 54, 192, 108}));
  EXPECT_EQ(miniature->settings()->record.picturePercent, "50");
}

TEST_F(MiniatureTest, AnEffectThatWaitsForTheClockDoesNotHoldTheThread) {
  // Late in the day many looks at the clock show the same time.
  clock.set({2026, 6, 15, 23, 59, 0, 0});
  settings["transitions/bFade"] = "1";
  settings["extras/transitionTime"] = "100";
  loop.pollCostMs = 0;
  play(true);
  loop.runFor(3000);
  EXPECT_GT(columnsOf(kBlue) + columnsOf(kRed), 300);
  EXPECT_FALSE(miniature->settings() == nullptr);
}

}  // namespace
}  // namespace saver
