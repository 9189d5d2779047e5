// The show's window on the real window system: which messages are input.
#include "saver/stage_window_win.h"

#include <gtest/gtest.h>

#include "os/clock_win.h"
#include "os/event_loop_win.h"

namespace {

struct StageWindowInput : testing::Test {
  os::ClockWin clock;
  os::EventLoopWin loop{clock};
  saver::StageWindowWin window{loop};
  int buttons = 0;
  int keys = 0;
  int moves = 0;

  StageWindowInput() {
    window.onMouseDown = [this](base::PixelPoint) { ++buttons; };
    window.onKeyDown = [this](int) { ++keys; };
    window.onMouseMove = [this](base::PixelPoint) { ++moves; };
  }

  void send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    SendMessageW(reinterpret_cast<HWND>(window.handle()), message, wParam, lParam);
  }
};

TEST_F(StageWindowInput, EveryButtonIsOne) {
  for (const UINT message : {WM_LBUTTONDOWN, WM_MBUTTONDOWN, WM_RBUTTONDOWN, WM_XBUTTONDOWN}) send(message);
  EXPECT_EQ(buttons, 4);
}

TEST_F(StageWindowInput, TheWheelIsNeitherAButtonNorAMoveNorAKey) {
  send(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
  send(WM_MOUSEHWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
  EXPECT_EQ(buttons + moves + keys, 0);
}

TEST_F(StageWindowInput, AKeyThatIsHeldDownRepeatsWhereSomebodyWantsToKnow) {
  constexpr LPARAM kWasDown = LPARAM{KF_REPEAT} << 16;
  int repeats = 0;
  send(WM_KEYDOWN, VK_RIGHT, kWasDown);
  EXPECT_EQ(keys, 1) << "nobody wants to know";
  window.onKeyRepeat = [&](int keyCode) {
    EXPECT_EQ(keyCode, VK_RIGHT);
    ++repeats;
  };
  send(WM_KEYDOWN, VK_RIGHT, kWasDown);
  send(WM_KEYDOWN, VK_RIGHT);
  EXPECT_EQ(keys, 2);
  EXPECT_EQ(repeats, 1);
}

TEST_F(StageWindowInput, WhatAHandlerThrowsGoesToTheErrorHandlerOfTheLoop) {
  int errors = 0;
  loop.setErrorHandler([&](const std::exception&) { ++errors; });
  window.onKeyDown = [](int) { throw std::runtime_error("in a handler"); };
  send(WM_KEYDOWN, VK_SPACE);
  EXPECT_EQ(errors, 1);
}

}  // namespace
