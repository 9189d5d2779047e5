#include "os/foreign_window.h"

#include <gtest/gtest.h>

#include "os/clock_win.h"
#include "os/event_loop_win.h"
#include "os/handles_win.h"
#include "os/instance.h"
#include "startup/preview.h"
#include "support/primary_screen_win.h"

namespace {

base::Bitmap ColorfulImage() {
  base::Bitmap image(startup::kPreviewSize, 0xFF000000);
  for (int y = 0; y < 120; ++y) {
    for (int x = 0; x < 160; ++x) {
      image.row(y)[x] =
          0xFF000000U | static_cast<base::Pixel>(x) << 16 | static_cast<base::Pixel>(y) << 8 | 0x55U;
    }
  }
  return image;
}

// A window that its owner paints grey.
LRESULT CALLBACK PaintGrey(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_PAINT) return DefWindowProcW(window, message, wParam, lParam);
  const os::PaintDc dc(window);
  const os::OwnedBrush grey(CreateSolidBrush(RGB(128, 128, 128)));
  FillRect(dc.get(), &dc.area(), grey.get());
  return 0;
}

struct ForeignWindowWin : testing::Test {
  os::ClockWin clock;
  os::EventLoopWin loop{clock};
  std::unique_ptr<os::ForeignWindow> foreign = os::MakeForeignWindow();
  os::OwnedWindow owner;
  base::Bitmap image = ColorfulImage();

  ForeignWindowWin() {
    WNDCLASSW description{};
    description.lpfnWndProc = PaintGrey;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = L"LumoraTestGrey";
    RegisterClassW(&description);
    owner.reset(CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, L"LumoraTestGrey", L"",
                                WS_POPUP | WS_VISIBLE, 64, 48, 320, 240, nullptr, nullptr,
                                description.hInstance, nullptr));
    UpdateWindow(owner.get());
    settle();
  }

  std::intptr_t handle() const { return reinterpret_cast<std::intptr_t>(owner.get()); }

  void settle() {
    const std::int64_t end = clock.tickMs() + 60;
    while (clock.tickMs() < end) loop.waitUntil(end);
  }
};

constexpr base::Pixel kGrey = 0xFF808080;

TEST_F(ForeignWindowWin, KnowsWindowsFromNumbers) {
  EXPECT_TRUE(foreign->exists(handle()));
  EXPECT_FALSE(foreign->exists(0));
  EXPECT_FALSE(foreign->exists(-1));
  EXPECT_FALSE(foreign->exists(0x7FFFFFFF));
  const std::intptr_t gone = handle();
  owner.reset();
  EXPECT_FALSE(foreign->exists(gone));
}

TEST_F(ForeignWindowWin, EveryPixelOfThePictureArrivesOnTheScreen) {
  foreign->draw(handle(), image);
  settle();
  const base::Bitmap screen = support::PrimaryScreen();
  int wrong = 0;
  for (int y = 0; y < 120; ++y) {
    for (int x = 0; x < 160; ++x) wrong += screen.at(64 + x, 48 + y) == image.at(x, y) ? 0 : 1;
  }
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(screen.at(64 + 160, 48 + 10), kGrey);
  EXPECT_EQ(screen.at(64 + 10, 48 + 120), kGrey);
}

TEST_F(ForeignWindowWin, ReadsBackWhatTheWindowShows) {
  EXPECT_EQ(foreign->pixelAt(handle(), {20, 60}), kGrey);
  foreign->draw(handle(), image);
  EXPECT_EQ(foreign->pixelAt(handle(), {20, 60}), image.at(20, 60));
  EXPECT_EQ(foreign->pixelAt(handle(), {320, 60}), std::nullopt);
  EXPECT_FALSE(startup::PreviewIsLost(*foreign, handle(), image));
  InvalidateRect(owner.get(), nullptr, TRUE);
  UpdateWindow(owner.get());
  EXPECT_TRUE(startup::PreviewIsLost(*foreign, handle(), image));
}

TEST_F(ForeignWindowWin, DrawingIntoNoWindowDrawsNowhere) {
  const std::intptr_t gone = handle();
  owner.reset();
  settle();
  const base::Bitmap before = support::PrimaryScreen();
  foreign->draw(gone, image);
  settle();
  EXPECT_TRUE(before == support::PrimaryScreen());
}

TEST_F(ForeignWindowWin, WindowsOfItsOwnerAndOurFollowerAreNoOthers) {
  EXPECT_FALSE(foreign->holdsAnother(handle()));
  foreign->follow(handle(), [] {});
  EXPECT_FALSE(foreign->holdsAnother(handle()));
}

TEST_F(ForeignWindowWin, TheFollowerIsInsideAndHidden) {
  foreign->follow(handle(), [] {});
  const HWND inside = GetWindow(owner.get(), GW_CHILD);
  ASSERT_NE(inside, nullptr);
  EXPECT_FALSE(IsWindowVisible(inside));
}

TEST_F(ForeignWindowWin, TheFollowerTellsOnceThatTheWindowHasGone) {
  int closed = 0;
  foreign->follow(handle(), [&]() noexcept { ++closed; });
  owner.reset();
  settle();
  EXPECT_EQ(closed, 1);
}

TEST_F(ForeignWindowWin, TheFollowerTellsThatTheOwnerClosedIt) {
  int closed = 0;
  foreign->follow(handle(), [&]() noexcept { ++closed; });
  SendMessageW(GetWindow(owner.get(), GW_CHILD), WM_CLOSE, 0, 0);
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(GetWindow(owner.get(), GW_CHILD), nullptr);
}

TEST_F(ForeignWindowWin, TheFollowerLeavesWithItsMaker) {
  int closed = 0;
  {
    const std::unique_ptr<os::ForeignWindow> shorter = os::MakeForeignWindow();
    shorter->follow(handle(), [&]() noexcept { ++closed; });
  }
  EXPECT_EQ(GetWindow(owner.get(), GW_CHILD), nullptr);
  EXPECT_EQ(closed, 0);
}

TEST_F(ForeignWindowWin, ALivePreviewComesBackAfterARepaintAndEndsWithItsWindow) {
  const auto instance = os::MakeInstance("LumoraTestPreview");
  ASSERT_TRUE(instance->becomeOnly());
  int repaints = 0;
  const std::int64_t giveUp = clock.tickMs() + 20000;
  loop.startTimer(50, [&] {
    if (clock.tickMs() < giveUp && startup::PreviewIsLost(*foreign, handle(), image)) return;
    if (clock.tickMs() >= giveUp || repaints == 3) {
      owner.reset();
      return;
    }
    ++repaints;  // the picture is there: lose it again
    InvalidateRect(owner.get(), nullptr, TRUE);
    UpdateWindow(owner.get());
    EXPECT_TRUE(startup::PreviewIsLost(*foreign, handle(), image));
  });
  bool ended = false;
  startup::DrawPreview("/p " + std::to_string(handle()), image, "1", {*foreign, loop, clock, *instance},
                       [&] { ended = true; });
  EXPECT_TRUE(ended);
  EXPECT_EQ(repaints, 3) << "it came back after each";
  EXPECT_TRUE(os::MakeInstance("LumoraTestPreview")->becomeOnly()) << "another copy may start";
}

TEST_F(ForeignWindowWin, AnOrdinaryPreviewIsDrawnAndEnds) {
  const auto instance = os::MakeInstance("LumoraTestPreview");
  bool ended = false;
  startup::DrawPreview("/p " + std::to_string(handle()), image, "", {*foreign, loop, clock, *instance},
                       [&] { ended = true; });
  EXPECT_TRUE(ended);
  EXPECT_FALSE(startup::PreviewIsLost(*foreign, handle(), image));
}

}  // namespace
