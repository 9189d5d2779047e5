// The show's window, as the system and a window manager see it.
#include "saver/stage_window_win.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/display_power_message_win.h"
#include "support/fake_event_loop.h"

namespace saver {
namespace {

struct StageWindowWinTest : testing::Test {
  HWND handle() const { return reinterpret_cast<HWND>(window.handle()); }
  LONG_PTR extendedStyle() const { return GetWindowLongPtrW(handle(), GWL_EXSTYLE); }

  support::FakeClock clock;
  support::FakeEventLoop loop{clock};
  StageWindowWin window{loop};
};

TEST_F(StageWindowWinTest, HasNoButtonOnTheTaskbarByItsOwnerAndGetsKeysLikeAnyWindow) {
  window.cover({0, 0, 200, 100});
  const HWND owner = GetWindow(handle(), GW_OWNER);
  ASSERT_NE(owner, nullptr);
  EXPECT_FALSE(IsWindowVisible(owner));
  EXPECT_EQ(extendedStyle() & (WS_EX_TOOLWINDOW | WS_EX_APPWINDOW | WS_EX_NOACTIVATE), 0);
  EXPECT_NE(extendedStyle() & WS_EX_TOPMOST, 0);
  EXPECT_TRUE(IsWindowVisible(handle()));
}

TEST_F(StageWindowWinTest, TakesItsOwnerAlongWhenItCloses) {
  const HWND shown = handle();
  const HWND owner = GetWindow(shown, GW_OWNER);
  window.close();
  EXPECT_FALSE(IsWindow(shown));
  EXPECT_FALSE(IsWindow(owner));
}

TEST_F(StageWindowWinTest, IsTheOnlyWindowOfItsClassSoThatAPoliteRequestReachesIt) {
  EXPECT_EQ(FindWindowW(L"WindowsScreenSaverClass", nullptr), handle());
  EXPECT_EQ(FindWindowExW(nullptr, handle(), L"WindowsScreenSaverClass", nullptr), nullptr);
}

TEST_F(StageWindowWinTest, TellsOfADisplayThatGoesOnOrOffAndOfNothingElse) {
  window.cover({0, 0, 200, 100});
  std::vector<bool> told;
  window.onDisplayPower = [&](bool isOn) { told.push_back(isOn); };
  const auto send = [this](WPARAM event, const support::DisplayPowerMessage& message) {
    return SendMessageW(handle(), WM_POWERBROADCAST, event, reinterpret_cast<LPARAM>(message.bytes));
  };
  for (const DWORD state : {0U, 1U, 0U, 2U}) {
    EXPECT_EQ(send(PBT_POWERSETTINGCHANGE, support::DisplayPowerMessage(state)), TRUE);
  }
  EXPECT_EQ(told, (std::vector<bool>{false, true, false, true})) << "one that is dimmed is on";
  told.clear();
  send(PBT_POWERSETTINGCHANGE, support::DisplayPowerMessage(0, GUID{1, 2, 3, {}}));
  send(PBT_APMSUSPEND, support::DisplayPowerMessage(0));
  SendMessageW(handle(), WM_POWERBROADCAST, PBT_POWERSETTINGCHANGE, 0);
  support::DisplayPowerMessage empty(0);
  reinterpret_cast<POWERBROADCAST_SETTING*>(empty.bytes)->DataLength = 0;
  send(PBT_POWERSETTINGCHANGE, empty);
  EXPECT_TRUE(told.empty());
}

TEST_F(StageWindowWinTest, AsksForTheDisplaysPowerWhenItIsActivatedAndEndsWithoutIt) {
  window.cover({0, 0, 200, 100});
  window.activate();
  window.activate();
  window.close();
  EXPECT_FALSE(IsWindow(handle()));
}

}  // namespace
}  // namespace saver
