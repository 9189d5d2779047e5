#include <gtest/gtest.h>

#include <memory>

#include "e2e/keyboard.h"
#include "e2e/pointer.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/utf16_win.h"
#include "support/colors.h"

namespace {

// A plain show on the screen, with the pointer resting in the middle of its background.
class InputTest : public testing::Test {
 protected:
  // `sensitivity` as in the settings file: 30 gives the threshold 1, 23 gives 7, 1 gives 30.
  void start(const char* sensitivity) {
    e2e::MoveMouseTo(400, 300);
    folder.set("image/mouseSensitivity", sensitivity);
    folder.writeSettings();
    show = std::make_unique<e2e::RunningProgram>(folder.program(), L"/S");
    ASSERT_NE(show->waitForShow(), nullptr);
    ASSERT_TRUE(e2e::WaitFor([&] { return e2e::ScreenPixel(2, 2) == support::kDarkRedPixel; }));
    ASSERT_TRUE(e2e::WaitForKeyboard(show->waitForShow()));
    // The first event only records; the second arrives after it, so both have been seen.
    moveTo(400, 300);
  }

  // Moves and lets the show see it.
  void moveTo(int x, int y) {
    e2e::MoveMouseTo(x, y);
    e2e::WaitFor([this] { return !show->isRunning(); }, 60);
  }

  // Starts a show and moves so many times, a little further each time. False where others have moved the
  // pointer meanwhile, so that nobody knows how many moves the show has seen.
  bool startAndMoveExactly(const char* sensitivity, int times) {
    show = nullptr;
    start(sensitivity);
    const e2e::StrayMoves stray;
    for (int i = 1; i <= times; ++i) moveTo(400 + 2 * i, 300);
    return !stray.any();
  }

  // Moves on and on, some hundred times a second, until the show has seen enough of it.
  bool fastMovesEndIt() {
    for (int i = 0; i < 3000 && show->isRunning(); ++i) {
      e2e::MoveMouseTo(500 + 5 * (i % 40), 300);
      e2e::WaitFor([this] { return !show->isRunning(); }, 5);
    }
    return endsSoon();
  }

  bool endsSoon() { return show->waitForEnd(3000); }
  bool goesOn() { return !show->waitForEnd(700); }

  InputTest() { folder.set("background/newBackColor", "128"); }

  e2e::ProgramFolder folder;
  std::unique_ptr<e2e::RunningProgram> show;
};

TEST_F(InputTest, AKeyEndsTheShowAtOnce) {
  start("1");
  e2e::PressKey('A');
  EXPECT_TRUE(endsSoon());
  EXPECT_EQ(show->exitCode(), 0U);
}

TEST_F(InputTest, AMouseButtonEndsTheShowAtOnce) {
  start("1");
  e2e::ClickMouse();
  EXPECT_TRUE(endsSoon());
}

TEST_F(InputTest, WithThresholdOneTheFirstCountedMoveEndsTheShow) {
  start("30");
  moveTo(402, 300);
  EXPECT_TRUE(endsSoon());
}

TEST_F(InputTest, AnEventAtAnUnchangedPlaceDoesNotEndTheShow) {
  start("30");
  for (int i = 0; i < 5; ++i) moveTo(400, 300);
  EXPECT_TRUE(goesOn());
}

TEST_F(InputTest, WithThresholdSevenSixMovesAreTooFewAndTheSeventhEndsTheShow) {
  bool isExact = false;
  for (int attempt = 0; attempt < 10 && !isExact; ++attempt) isExact = startAndMoveExactly("23", 6);
  ASSERT_TRUE(isExact);
  EXPECT_TRUE(show->isRunning());
  EXPECT_TRUE(fastMovesEndIt());
}

TEST_F(InputTest, MovesSpreadOverMoreThanTwoSecondsKeepTheShowRunning) {
  start("23");
  for (int i = 1; i <= 9; ++i) {
    e2e::MoveMouseTo(400 + 10 * i, 300);
    e2e::WaitFor([] { return false; }, 800);
  }
  EXPECT_TRUE(goesOn());
}

TEST_F(InputTest, WithThresholdThirtyManyFastMovesEndTheShow) {
  start("1");
  for (int i = 1; i <= 20; ++i) moveTo(400 + 5 * i, 300);
  EXPECT_TRUE(show->isRunning());
  EXPECT_TRUE(fastMovesEndIt());
}

TEST_F(InputTest, OverThePictureAJitterOfThreePixelsNeverEndsTheShow) {
  folder.set("image/timeInterval", "0");
  folder.addPicture({300, 300}, base::Rgb(255, 0, 0));
  start("30");
  ASSERT_TRUE(e2e::WaitFor([&] { return !e2e::BoundsOf(e2e::ReadScreen(), 0xFFFF0000U).isEmpty(); }));
  const base::PixelSize screen = e2e::ScreenSize();
  // To the middle of the picture: its own handler's first event only records.
  e2e::MoveMouseTo(screen.width / 2, screen.height / 2);
  if (!show->isRunning()) GTEST_SKIP() << "the move across the background was seen as an event of its own";
  for (int i = 0; i < 10; ++i) moveTo(screen.width / 2 + (i % 2) * 3, screen.height / 2);
  EXPECT_TRUE(goesOn());
  moveTo(screen.width / 2 + 10, screen.height / 2);
  EXPECT_TRUE(endsSoon());
}

TEST_F(InputTest, AKeyEndsTheShowInTheMiddleOfATransition) {
  folder.set("transitions/bFade", "1");
  folder.set("extras/transitionTime", "5000");
  folder.addPicture({800, 600}, base::Rgb(255, 0, 0));
  start("1");
  ASSERT_TRUE(e2e::WaitFor([&] { return !e2e::BoundsOf(e2e::ReadScreen(), 0xFFFF0000U).isEmpty(); }));
  const ULONGLONG pressed = GetTickCount64();
  e2e::PressKey(VK_SPACE);
  EXPECT_TRUE(endsSoon());
  EXPECT_LT(GetTickCount64() - pressed, 4000U) << "long before the transition's own end";
}

TEST_F(InputTest, APoliteCloseEndsTheShow) {
  start("1");
  PostMessageW(show->waitForShow(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(endsSoon());
}

TEST(Instances, ASecondShowEndsSilentlyWithEverySwitch) {
  e2e::ProgramFolder folder;
  folder.writeSettings();
  e2e::RunningProgram first(folder.program(), L"/S");
  ASSERT_NE(first.waitForShow(), nullptr);
  for (const wchar_t* arguments : {L"/S", L"/C", L"/P 0", L"/A 0", L"", L"xyz"}) {
    e2e::RunningProgram second(folder.program(), arguments);
    EXPECT_TRUE(second.waitForEnd(5000)) << os::FromWide(arguments);
    EXPECT_EQ(second.exitCode(), 0U);
  }
  EXPECT_TRUE(first.isRunning());
  EXPECT_TRUE(first.endsByKey());
}

TEST(CommandLine, EveryFormThatMeansTheShowStartsTheShow) {
  e2e::ProgramFolder folder;
  folder.writeSettings();
  for (const wchar_t* arguments : {L"/s", L"  /S  ", L"", L"xyz", L"/SCREEN", L"-s"}) {
    e2e::RunningProgram show(folder.program(), arguments);
    EXPECT_NE(show.waitForShow(), nullptr) << os::FromWide(arguments);
    EXPECT_TRUE(show.endsByKey()) << os::FromWide(arguments);
  }
}

}  // namespace
