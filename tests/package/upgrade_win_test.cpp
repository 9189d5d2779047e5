#include <windows.h>

#include "e2e/dialog_hands.h"
#include "e2e/keyboard.h"
#include "e2e/running_program.h"
#include "os/utf16_win.h"
#include "package/files.h"
#include "package/installation.h"
#include "package/packages.h"
#include "package/user_registry.h"

namespace {

using package::kAppKey;
using package::packages;
using package::ReadText;

class Upgrade : public package::Installation {};

TEST_F(Upgrade, KeepsWhatWasSetInTheDialog) {
  ASSERT_TRUE(install(packages.setup));
  {
    e2e::RunningProgram program(this->program(), L"/C");
    const HWND dialog = e2e::DialogOf(program);
    ASSERT_NE(dialog, nullptr);
    const HWND caption = e2e::WaitForChild(dialog, L"Edit", L"Mountains at dusk");
    ASSERT_NE(caption, nullptr);
    ASSERT_TRUE(e2e::EnterField(dialog, caption));
    e2e::PressKey(VK_END);
    e2e::PressKey('7');
    ASSERT_NE(e2e::WaitForChild(dialog, L"Edit", L"Mountains at dusk7"), nullptr);
    e2e::ClickOn(e2e::ChildOf(dialog, L"Button", L"&OK"));
    ASSERT_TRUE(program.waitForEnd());
  }
  const std::string saved = package::ReadWholeFile(settingsFile());
  ASSERT_NE(saved.find("0=Mountains at dusk7\r\n"), std::string::npos);

  ASSERT_TRUE(install(packages.laterSetup));
  EXPECT_EQ(package::ReadWholeFile(settingsFile()), saved);
  EXPECT_EQ(ReadText(kAppKey, L"DisplayVersion"), packages.laterVersion);
  EXPECT_EQ(versionOf(program()), packages.laterVersion);
  EXPECT_NE(packages.version, packages.laterVersion);

  e2e::RunningProgram again(this->program(), L"/C");
  const HWND dialog = e2e::DialogOf(again);
  ASSERT_NE(dialog, nullptr);
  EXPECT_NE(e2e::WaitForChild(dialog, L"Edit", L"Mountains at dusk7"), nullptr);
  e2e::ClickOn(e2e::ChildOf(dialog, L"Button", L"&Cancel"));
  EXPECT_TRUE(again.waitForEnd());
}

TEST_F(Upgrade, ReplacesSamplesOnlyWhereTheyAreItsOwn) {
  ASSERT_TRUE(install(packages.setup));
  const std::string sample = package::ReadWholeFile(folder() + L"\\image1.gif");
  package::RemoveFile(folder() + L"\\image1.gif");
  package::WriteWholeFile(folder() + L"\\image2.gif", "a picture of the user's");
  ASSERT_TRUE(install(packages.laterSetup));
  EXPECT_EQ(package::ReadWholeFile(folder() + L"\\image1.gif"), sample);
  EXPECT_EQ(package::ReadWholeFile(folder() + L"\\image2.gif"), "a picture of the user's");
}

TEST_F(Upgrade, GoesWhereTheFirstInstallationWent) {
  ASSERT_TRUE(install(packages.setup, L"/D=" + otherFolder()));
  ASSERT_TRUE(install(packages.laterSetup));
  EXPECT_EQ(folder(), otherFolder());
  EXPECT_EQ(versionOf(otherFolder() + L"\\Lumora.scr"), packages.laterVersion);
}

TEST_F(Upgrade, TakesThePlaceOfALumoraInAnotherFolder) {
  ASSERT_TRUE(install(packages.setup));
  const std::wstring old = folder();
  ASSERT_TRUE(install(packages.laterSetup, L"/D=" + otherFolder()));
  EXPECT_EQ(folder(), otherFolder());
  const std::wstring saver = screenSaver().value_or(L"");
  EXPECT_TRUE(package::Exists(saver)) << "the new one is the screen saver";
  EXPECT_NE(saver, old + L"\\Lumora.scr");
  EXPECT_FALSE(package::Exists(old + L"\\Lumora.scr"));
  EXPECT_FALSE(package::Exists(old + L"\\uninstall.exe"));
  EXPECT_TRUE(package::Exists(old + L"\\zbfaone.ini"));
}

TEST_F(Upgrade, ChangesNothingWhenALumoraInAnotherFolderCannotBeRemoved) {
  ASSERT_TRUE(install(packages.setup));
  const package::UserState before = package::ReadUserState();
  const HANDLE held =
      CreateFileW(program().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  EXPECT_EQ(run(packages.laterSetup, L"/S /D=" + otherFolder()), 3U);
  CloseHandle(held);
  EXPECT_EQ(package::Difference(before, package::ReadUserState()), "");
}

TEST_F(Upgrade, EndsARunningShow) {
  ASSERT_TRUE(install(packages.setup));
  e2e::RunningProgram show(program(), L"/s");
  ASSERT_NE(show.waitForShow(), nullptr);
  ASSERT_TRUE(install(packages.laterSetup));
  EXPECT_FALSE(show.isRunning());
  EXPECT_EQ(versionOf(program()), packages.laterVersion);
}

TEST_F(Upgrade, ClosesAnOpenDialogInSilenceAsItsCancelWould) {
  ASSERT_TRUE(install(packages.setup));
  e2e::RunningProgram dialog(program(), L"/C");
  ASSERT_NE(e2e::DialogOf(dialog), nullptr);
  const std::string before = package::ReadWholeFile(settingsFile());
  ASSERT_TRUE(install(packages.laterSetup));
  EXPECT_FALSE(dialog.isRunning());
  EXPECT_EQ(package::ReadWholeFile(settingsFile()), before);
  EXPECT_EQ(versionOf(program()), packages.laterVersion);
}

TEST_F(Upgrade, ChangesNothingWhenTheProgramCannotBeReplaced) {
  ASSERT_TRUE(install(packages.setup));
  const package::UserState before = package::ReadUserState();
  const HANDLE held =
      CreateFileW(program().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  EXPECT_EQ(run(packages.laterSetup, L"/S"), 3U);
  CloseHandle(held);
  EXPECT_EQ(package::Difference(before, package::ReadUserState()), "");
}

}  // namespace
