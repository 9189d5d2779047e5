// The built program while the display is off.
#include <gtest/gtest.h>

#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "support/display_power_message_win.h"

namespace {

constexpr base::Pixel kColors[] = {0xFFFF0000U, 0xFF0000FFU};

// Tells a window of another process, as the system would: what the message points to lies in that process.
void TellDisplay(const e2e::RunningProgram& program, HWND window, DWORD state) {
  const support::DisplayPowerMessage message(state);
  void* const there =
      VirtualAllocEx(program.process(), nullptr, sizeof(message.bytes), MEM_COMMIT, PAGE_READWRITE);
  ASSERT_NE(there, nullptr);
  ASSERT_TRUE(WriteProcessMemory(program.process(), there, message.bytes, sizeof(message.bytes), nullptr));
  ASSERT_EQ(SendMessageW(window, WM_POWERBROADCAST, PBT_POWERSETTINGCHANGE, reinterpret_cast<LPARAM>(there)),
            TRUE);
  VirtualFreeEx(program.process(), there, 0, MEM_RELEASE);
}

// True when nothing on the screen changes for a time in which several pictures would have come and gone.
bool StandsStill() {
  const base::Bitmap before = e2e::ReadScreen();
  return !e2e::WaitFor([&] { return !(e2e::ReadScreen() == before); }, 5000);
}

TEST(DisplayPower, TheShowStandsStillWhileTheDisplayIsOffAndGoesOnAfterwards) {
  e2e::ProgramFolder folder;
  folder.set("extras/loadAhead", "1");
  folder.set("font/scroll", "0");
  folder.set("image/timeDisplay", "1");
  folder.addPicture({300, 200}, base::Rgb(255, 0, 0), "A caption");
  folder.addPicture({300, 200}, base::Rgb(0, 0, 255), "Another");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  const HWND window = show.waitForShow();
  ASSERT_NE(window, nullptr);
  ASSERT_TRUE(e2e::MiddleComesToBe(kColors[0]));
  TellDisplay(show, window, 0);
  EXPECT_TRUE(StandsStill());
  TellDisplay(show, window, 1);
  EXPECT_TRUE(e2e::MiddleComesToBe(kColors[1]));
  EXPECT_TRUE(e2e::MiddleComesToBe(kColors[0]));
  TellDisplay(show, window, 2);  // dimmed
  EXPECT_TRUE(e2e::MiddleComesToBe(kColors[1]));
  TellDisplay(show, window, 0);
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
}

}  // namespace
