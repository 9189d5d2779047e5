#include <gtest/gtest.h>

#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/handles_win.h"

namespace {

// A taskbar of the test's own, which the show finds by its class.
class Taskbar {
 public:
  Taskbar() {
    WNDCLASSW description{};
    description.lpfnWndProc = DefWindowProcW;
    description.lpszClassName = L"Shell_traywnd";
    RegisterClassW(&description);
    window_.reset(CreateWindowExW(WS_EX_TOOLWINDOW, L"Shell_traywnd", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50,
                                  10, nullptr, nullptr, nullptr, nullptr));
  }

  bool isTheOneFound() const { return FindWindowW(L"Shell_traywnd", L"") == window_.get(); }
  bool isVisible() const { return IsWindowVisible(window_.get()) != FALSE; }
  void hide() const { ShowWindow(window_.get(), SW_HIDE); }
  bool comesToBe(bool visible) const {
    return e2e::WaitFor([&] { return isVisible() == visible; });
  }

 private:
  os::OwnedWindow window_;
};

class EndingTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!taskbar.isTheOneFound()) GTEST_SKIP() << "this desktop has a taskbar of its own";
  }

  Taskbar taskbar;
  e2e::ProgramFolder folder;
};

TEST_F(EndingTest, TheTaskbarIsHiddenDuringTheShowAndComesBackAfterAKey) {
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(taskbar.comesToBe(false));
  EXPECT_TRUE(show.endsByKey());
  EXPECT_TRUE(taskbar.comesToBe(true));
}

TEST_F(EndingTest, ARunTimeErrorEndsTheShowQuietlyAndBringsTheTaskbarBack) {
  folder.set("image/timeInterval", "soon");
  folder.addPicture({50, 50}, base::Rgb(255, 0, 0));
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  EXPECT_TRUE(show.waitForEnd());
  EXPECT_EQ(show.exitCode(), 0U);
  EXPECT_TRUE(taskbar.comesToBe(true));
}

TEST_F(EndingTest, ACrashInTheMiddleOfTheShowBringsTheTaskbarBack) {
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  ASSERT_TRUE(taskbar.comesToBe(false));
  // A thread that begins at an address where nothing is.
  const os::OwnedHandle thread(CreateRemoteThread(
      show.process(), nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(8), nullptr, 0, nullptr));
  ASSERT_TRUE(thread);
  EXPECT_TRUE(show.waitForEnd());
  EXPECT_NE(show.exitCode(), 0U);
  EXPECT_TRUE(taskbar.comesToBe(true));
}

TEST_F(EndingTest, ATaskbarThatAKilledShowLeftHiddenComesBackAtTheNextStartOfAnyKind) {
  folder.writeSettings();
  {
    e2e::RunningProgram show(folder.program(), L"/S");
    ASSERT_NE(show.waitForShow(), nullptr);
    ASSERT_TRUE(taskbar.comesToBe(false));
    TerminateProcess(show.process(), 1);
    ASSERT_TRUE(show.waitForEnd());
  }
  EXPECT_FALSE(taskbar.isVisible());
  e2e::RunningProgram preview(folder.program(), L"/p 1");  // no window goes by that number
  EXPECT_TRUE(preview.waitForEnd());
  EXPECT_TRUE(taskbar.comesToBe(true));
}

TEST_F(EndingTest, ATaskbarThatSomebodyElseHidStaysHidden) {
  taskbar.hide();
  folder.writeSettings();
  e2e::RunningProgram preview(folder.program(), L"/p 1");
  EXPECT_TRUE(preview.waitForEnd());
  EXPECT_FALSE(taskbar.isVisible());
}

TEST_F(EndingTest, TheEndOfTheSessionBringsTheTaskbarBack) {
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  const HWND window = show.waitForShow();
  ASSERT_NE(window, nullptr);
  ASSERT_TRUE(taskbar.comesToBe(false));
  EXPECT_TRUE(SendMessageW(window, WM_QUERYENDSESSION, 0, 0));
  SendMessageW(window, WM_ENDSESSION, TRUE, 0);
  EXPECT_TRUE(show.waitForEnd());
  EXPECT_TRUE(taskbar.comesToBe(true));
}

}  // namespace
