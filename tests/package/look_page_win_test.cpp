// The installer's page that asks how pictures are to look, by the mouse.
#include <gtest/gtest.h>
#include <windows.h>

#include "e2e/dialog_hands.h"
#include "e2e/running_program.h"
#include "package/files.h"
#include "package/installation.h"
#include "package/packages.h"

namespace {

using package::packages;

bool IsChecked(HWND option) { return SendMessageW(option, BM_GETCHECK, 0, 0) == BST_CHECKED; }

// Pictures in windows inside another one.
int PicturesIn(HWND parent) {
  int count = 0;
  EnumChildWindows(
      parent,
      [](HWND window, LPARAM data) CALLBACK -> BOOL {
        wchar_t name[16] = {};
        GetClassNameW(window, name, 16);
        const bool isBitmap = (GetWindowLongPtrW(window, GWL_STYLE) & SS_TYPEMASK) == SS_BITMAP;
        if (IsWindowVisible(window) && std::wstring(name) == L"Static" && isBitmap) {
          ++*reinterpret_cast<int*>(data);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&count));
  return count;
}

class LookPage : public package::Installation {
 protected:
  // The window of an installer that was just started.
  static HWND window() {
    HWND setup = nullptr;
    e2e::WaitFor([&] {
      setup = FindWindowW(L"#32770", L"Lumora Screen Saver Setup");
      return setup != nullptr && IsWindowVisible(setup);
    });
    return setup;
  }

  // Presses a button of the installer's lower edge when it can be pressed.
  static testing::AssertionResult press(HWND setup, const wchar_t* text) {
    HWND button = nullptr;
    const bool can = e2e::WaitFor(
        [&] {
          button = e2e::ChildOf(setup, L"Button", text);
          return button != nullptr && IsWindowEnabled(button) && GetForegroundWindow() == setup;
        },
        30000);
    if (!can) return testing::AssertionFailure() << "no button to press";
    e2e::ClickOn(button);
    return testing::AssertionSuccess();
  }

  // From the last page to the end, without the settings dialog.
  static void finish(HWND setup, e2e::RunningProgram& installer) {
    const HWND choose = e2e::WaitForChild(setup, L"Button", L"Choose my pictures now");
    ASSERT_NE(choose, nullptr);
    if (IsChecked(choose)) e2e::ClickOn(choose);
    ASSERT_TRUE(press(setup, L"&Finish"));
    ASSERT_TRUE(installer.waitForEnd());
  }
};

TEST_F(LookPage, AsksAFirstInstallationWithTwoPicturesAndProposesToday) {
  e2e::RunningProgram installer(packages.setup, L"");
  const HWND setup = window();
  ASSERT_NE(setup, nullptr);
  ASSERT_TRUE(press(setup, L"&Next >"));
  ASSERT_NE(e2e::WaitForChild(setup, L"Button", L"B&rowse..."), nullptr);
  ASSERT_TRUE(press(setup, L"&Next >"));
  const HWND today = e2e::WaitForChild(setup, L"Button", L"&Today");
  ASSERT_NE(today, nullptr);
  const HWND classic = e2e::ChildOf(setup, L"Button", L"&Classic");
  ASSERT_NE(classic, nullptr);
  EXPECT_TRUE(IsChecked(today));
  EXPECT_FALSE(IsChecked(classic));
  EXPECT_GE(PicturesIn(setup), 2);
  e2e::ClickOn(classic);
  EXPECT_TRUE(e2e::WaitFor([&] { return IsChecked(classic) && !IsChecked(today); }));
  ASSERT_TRUE(press(setup, L"&Install"));
  finish(setup, installer);
  EXPECT_EQ(package::ReadWholeFile(settingsFile()), packages.settings) << "the classic file, as in the ZIP";
}

TEST_F(LookPage, IsNotShownToAnUpgrade) {
  ASSERT_TRUE(install(packages.setup, L"/LOOK=classic"));
  const std::string before = package::ReadWholeFile(settingsFile());
  e2e::RunningProgram installer(packages.laterSetup, L"");
  const HWND setup = window();
  ASSERT_NE(setup, nullptr);
  ASSERT_TRUE(press(setup, L"&Next >")) << "neither a place is asked for nor a look";
  finish(setup, installer);
  EXPECT_EQ(package::ReadWholeFile(settingsFile()), before);
  EXPECT_EQ(versionOf(program()), packages.laterVersion);
}

}  // namespace
