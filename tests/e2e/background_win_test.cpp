#include <gtest/gtest.h>

#include "e2e/program_folder.h"
#include "e2e/running_program.h"

namespace {

// Waits until a place of the screen has a colour.
bool ComesTo(int x, int y, base::Pixel pixel) {
  return e2e::WaitFor([&] { return e2e::ScreenPixel(x, y) == pixel; });
}

TEST(Background, AGradientRunsFromItsColourAtTheTopToBlackAtTheBottom) {
  e2e::ProgramFolder folder;
  folder.set("background/backEffect", "3");
  folder.set("background/redBackground", "255");
  folder.set("background/greenBackground", "128");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/s");
  ASSERT_NE(show.waitForShow(), nullptr);
  const base::PixelSize screen = e2e::ScreenSize();
  EXPECT_TRUE(ComesTo(screen.width / 2, 0, 0xFFFF8000U));
  EXPECT_TRUE(ComesTo(screen.width / 2, screen.height - 1, 0xFF000000U));
  // Half-way down the red has lost half of itself and the green all of it.
  EXPECT_TRUE(ComesTo(5, screen.height / 2, 0xFF7F0000U));
}

TEST(Background, TheDesktopIsShownWhereTheDesktopWas) {
  // A window of a known colour stands on the desktop.
  const HWND note = CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 300, 200, 400, 300,
                                    nullptr, nullptr, nullptr, nullptr);
  ASSERT_NE(note, nullptr);
  ASSERT_TRUE(e2e::WaitFor([&] {
    e2e::PaintWindow(note, RGB(12, 200, 34));
    return e2e::ScreenPixel(500, 350) == 0xFF0CC822U;
  }));
  e2e::ProgramFolder folder;
  folder.set("background/backEffect", "1");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  DestroyWindow(note);
  // The window has gone; its picture is the show's background now.
  EXPECT_TRUE(e2e::WaitFor([] {
    return e2e::BoundsOf(e2e::ReadScreen(), 0xFF0CC822U) == base::PixelRect{300, 200, 400, 300};
  }));
  EXPECT_TRUE(show.isRunning());
}

TEST(Background, TilesRepeatFromTheTopLeftCorner) {
  e2e::ProgramFolder folder;
  const std::string tile = folder.writeBitmap("tile.bmp", {200, 100}, base::Rgb(200, 30, 30));
  folder.set("background/backEffect", "2");
  folder.set("background/backgroundDisplay", "2");
  folder.set("background/backgroundImage", tile);
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(e2e::WaitFor([] {
    return e2e::BoundsOf(e2e::ReadScreen(), 0xFFC81E1EU) == base::PixelRect::ofSize(e2e::ScreenSize());
  }));
}

TEST(Background, ACentredPictureStandsInTheMiddleOfTheWindowsOwnBackground) {
  e2e::ProgramFolder folder;
  const std::string image = folder.writeBitmap("image.bmp", {300, 200}, base::Rgb(200, 30, 30));
  folder.set("background/backEffect", "2");
  folder.set("background/backgroundDisplay", "0");
  folder.set("background/backgroundImage", image);
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  const base::PixelSize screen = e2e::ScreenSize();
  const base::PixelRect middle{(screen.width - 300) / 2, (screen.height - 200) / 2, 300, 200};
  EXPECT_TRUE(e2e::WaitFor([&] { return e2e::BoundsOf(e2e::ReadScreen(), 0xFFC81E1EU) == middle; }));
}

}  // namespace
