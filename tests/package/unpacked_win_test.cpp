#include <gtest/gtest.h>
#include <windows.h>

#include "e2e/dialog_hands.h"
#include "e2e/keyboard.h"
#include "e2e/running_program.h"
#include "os/utf16_win.h"
#include "package/files.h"
#include "package/packages.h"

namespace {

using package::packages;

// The ZIP's folder, as a user would keep it: in a folder of the user's with blanks and letters of several
// scripts in its name. It goes back to where it was, so that the tests can run again.
class Unpacked : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(package::Move(packages.unpacked, folder)); }
  void TearDown() override { EXPECT_TRUE(package::Move(folder, packages.unpacked)); }

  std::wstring program() const { return folder + L"\\Lumora.scr"; }

  const std::wstring folder =
      package::ProfileFolder() + L"\\\u041C\u043E\u0438 \u0444\u043E\u0442\u043E \u5199\u771F (1)";
};

TEST_F(Unpacked, TheShowRunsAndEndsByAKey) {
  e2e::RunningProgram show(program(), L"/s");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
}

TEST_F(Unpacked, SettingsAreSavedInItsFolder) {
  {
    e2e::RunningProgram process(program(), L"/C");
    const HWND dialog = e2e::DialogOf(process);
    ASSERT_NE(dialog, nullptr);
    const HWND caption = e2e::WaitForChild(dialog, L"Edit", L"Mountains at dusk");
    ASSERT_NE(caption, nullptr);
    ASSERT_TRUE(e2e::EnterField(dialog, caption));
    e2e::PressKey(VK_END);
    e2e::PressKey('3');
    ASSERT_NE(e2e::WaitForChild(dialog, L"Edit", L"Mountains at dusk3"), nullptr);
    e2e::ClickOn(e2e::ChildOf(dialog, L"Button", L"&OK"));
    ASSERT_TRUE(process.waitForEnd());
  }
  // The folder's name fits no ANSI code page, so the file is UTF-16 now.
  const std::string bytes = package::ReadWholeFile(folder + L"\\zbfaone.ini");
  ASSERT_EQ(bytes.substr(0, 2), "\xFF\xFE");
  std::wstring text;
  for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
    text += static_cast<wchar_t>(static_cast<unsigned char>(bytes[i]) |
                                 static_cast<unsigned char>(bytes[i + 1]) << 8);
  }
  EXPECT_NE(text.find(L"0=Mountains at dusk3\r\n"), std::wstring::npos);
  EXPECT_NE(text.find(L"0=" + folder + L"\\image1.gif\r\n"), std::wstring::npos)
      << os::FromWide(text.substr(0, 900));

  e2e::RunningProgram show(program(), L"/s");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(show.endsByKey());
}

}  // namespace
