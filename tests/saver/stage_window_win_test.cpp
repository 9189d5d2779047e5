// The show's window, as the system and a window manager see it.
#include "saver/stage_window_win.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace saver
