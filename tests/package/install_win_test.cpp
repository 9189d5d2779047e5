#include <windows.h>

#include <shellapi.h>

#include <set>

#include "e2e/dialog_hands.h"
#include "e2e/keyboard.h"
#include "e2e/running_program.h"
#include "package/files.h"
#include "package/installation.h"
#include "package/packages.h"
#include "package/user_registry.h"

namespace {

using package::Difference;
using package::Exists;
using package::kAppKey;
using package::packages;
using package::ReadNumber;
using package::ReadText;

class Install : public package::Installation {};

std::set<std::wstring> NamesLeft(const std::wstring& folder) {
  const std::vector<std::wstring> names = package::NamesIn(folder);
  return {names.begin(), names.end()};
}

// Starts an entry of the Start menu as the shell does; false when it is not there.
bool StartEntry(const std::wstring& name) {
  const std::wstring entry = package::ProfileFolder() +
                             L"\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\" + name +
                             L".lnk";
  constexpr INT_PTR kLargestError = 32;
  return Exists(entry) && reinterpret_cast<INT_PTR>(ShellExecuteW(nullptr, nullptr, entry.c_str(), nullptr,
                                                                  nullptr, SW_SHOWNORMAL)) > kLargestError;
}

// The process of a window, to be waited for.
HANDLE ProcessOf(HWND window) {
  DWORD processId = 0;
  GetWindowThreadProcessId(window, &processId);
  return OpenProcess(SYNCHRONIZE, FALSE, processId);
}

TEST_F(Install, LeavesNothingBehindWhenItIsUndoneWithItsSettings) {
  // What the system notes for itself when something is installed for the first time is there already.
  ASSERT_TRUE(install(packages.setup));
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  const package::UserState before = package::ReadUserState();
  ASSERT_TRUE(install(packages.setup));
  EXPECT_NE(Difference(before, package::ReadUserState()), "");
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  std::string difference;
  e2e::WaitFor([&] { return (difference = Difference(before, package::ReadUserState())).empty(); });
  EXPECT_EQ(difference, "");
}

TEST_F(Install, KeepsNothingButTheSettingsFileWhenItIsUndoneInSilence) {
  ASSERT_TRUE(install(packages.setup));
  package::WriteWholeFile(settingsFile(), "[image]\r\npicSpeed=4\r\n");
  ASSERT_TRUE(uninstall());
  EXPECT_EQ(package::ReadWholeFile(settingsFile()), "[image]\r\npicSpeed=4\r\n");
  EXPECT_EQ(package::NamesIn(folder()), std::vector<std::wstring>{L"zbfaone.ini"});
}

TEST_F(Install, RemovesWhatTheProgramMadeTogetherWithItsSettingsAndNothingElse) {
  ASSERT_TRUE(install(packages.setup));
  const std::set<std::wstring> made = {L"zbfaone.bak",  L"zbfaone-2.bak", L"zbfaone-5.bak",
                                       L"lumora.state", L"lumora.log",    L"zbfaone.ini.new-1234-1"};
  const std::set<std::wstring> notes = {L"zbfaone-old.bak", L"zbfaone.txt"};
  for (const std::wstring& name : made) package::WriteWholeFile(folder() + L"\\" + name, "made");
  for (const std::wstring& name : notes) package::WriteWholeFile(folder() + L"\\" + name, "the user's");
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  EXPECT_EQ(NamesLeft(folder()), notes);
}

TEST_F(Install, KeepsAllThatTheProgramMadeWithTheSettings) {
  ASSERT_TRUE(install(packages.setup));
  const std::set<std::wstring> made = {L"lumora.log", L"lumora.state", L"zbfaone-2.bak", L"zbfaone.bak",
                                       L"zbfaone.ini"};
  for (const std::wstring& name : made) package::WriteWholeFile(folder() + L"\\" + name, "made");
  ASSERT_TRUE(uninstall(L"/SETTINGS=keep"));
  EXPECT_EQ(NamesLeft(folder()), made);
}

TEST_F(Install, FindsTheSettingsOfALumoraThatWasThereBefore) {
  ASSERT_TRUE(install(packages.setup));
  package::WriteWholeFile(settingsFile(), "[image]\r\npicSpeed=4\r\n");
  ASSERT_TRUE(uninstall());
  ASSERT_TRUE(install(packages.setup));
  EXPECT_EQ(package::ReadWholeFile(settingsFile()), "[image]\r\npicSpeed=4\r\n");
}

// The lines of a settings file that stand for the look of today.
const std::vector<std::string> kLinesOfToday = {"fit=whole", "surround=blur", "change=crossfade", "panZoom=8",
                                                "shade=1"};

TEST_F(Install, BeginsWithTheLookOfTodayUnlessItIsToldOtherwise) {
  ASSERT_TRUE(install(packages.setup));
  std::string today = package::ReadWholeFile(settingsFile());
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  ASSERT_TRUE(install(packages.setup, L"/LOOK=today"));
  EXPECT_EQ(package::ReadWholeFile(settingsFile()), today);
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  ASSERT_TRUE(install(packages.setup, L"/LOOK=classic"));
  const std::string classic = package::ReadWholeFile(settingsFile());
  EXPECT_EQ(classic, packages.settings);
  // In these lines alone the two differ.
  for (const std::string& line : kLinesOfToday) {
    const std::size_t at = today.find("\r\n" + line + "\r\n");
    ASSERT_NE(at, std::string::npos) << line;
    const std::size_t value = today.find('=', at) + 1;
    today.erase(value, today.find('\r', value) - value);
  }
  EXPECT_EQ(today, classic);
}

TEST_F(Install, LeavesTheLookOfSettingsThatAreThere) {
  ASSERT_TRUE(install(packages.setup, L"/LOOK=classic"));
  const std::string before = package::ReadWholeFile(settingsFile());
  ASSERT_TRUE(install(packages.laterSetup, L"/LOOK=today"));
  EXPECT_EQ(package::ReadWholeFile(settingsFile()), before);
  ASSERT_TRUE(uninstall());
  ASSERT_TRUE(install(packages.setup, L"/LOOK=today"));
  EXPECT_EQ(package::ReadWholeFile(settingsFile()), before);
}

TEST_F(Install, PutsAnEntryIntoTheListOfApps) {
  ASSERT_TRUE(install(packages.setup));
  EXPECT_EQ(ReadText(kAppKey, L"DisplayName"), L"Lumora Screen Saver");
  EXPECT_EQ(ReadText(kAppKey, L"DisplayVersion"), packages.version);
  EXPECT_EQ(ReadText(kAppKey, L"Publisher"), L"The Lumora founders");
  EXPECT_EQ(ReadText(kAppKey, L"DisplayIcon"), program() + L",0");
  EXPECT_EQ(ReadText(kAppKey, L"InstallLocation"), proposedFolder());
  EXPECT_EQ(ReadText(kAppKey, L"UninstallString"), L"\"" + folder() + L"\\uninstall.exe\"");
  EXPECT_EQ(ReadText(kAppKey, L"QuietUninstallString"), L"\"" + folder() + L"\\uninstall.exe\" /S");
  EXPECT_EQ(ReadNumber(kAppKey, L"NoModify"), 1U);
  EXPECT_EQ(ReadNumber(kAppKey, L"NoRepair"), 1U);
  EXPECT_GT(ReadNumber(kAppKey, L"EstimatedSize").value_or(0), 2000U);
  EXPECT_LT(ReadNumber(kAppKey, L"EstimatedSize").value_or(0), 6000U);
  EXPECT_EQ(versionOf(program()), packages.version);
}

TEST_F(Install, TheStartMenuOpensTheSettings) {
  ASSERT_TRUE(install(packages.setup));
  ASSERT_TRUE(StartEntry(L"Lumora Screen Saver Settings"));
  const HWND dialog = e2e::AnyDialog();
  ASSERT_NE(dialog, nullptr);
  const HANDLE process = ProcessOf(dialog);
  const HWND cancel = e2e::WaitForChild(dialog, L"Button", L"&Cancel");
  ASSERT_NE(cancel, nullptr);
  e2e::ClickOn(cancel);
  EXPECT_EQ(WaitForSingleObject(process, 15000), WAIT_OBJECT_0);
  CloseHandle(process);
}

TEST_F(Install, TheStartMenuShowsThePictures) {
  ASSERT_TRUE(install(packages.setup));
  ASSERT_TRUE(StartEntry(L"Lumora Screen Saver"));
  HWND show = nullptr;
  ASSERT_TRUE(e2e::WaitFor(
      [&] { return (show = FindWindowW(e2e::kShowClass, nullptr)) != nullptr && IsWindowVisible(show); }));
  const HANDLE process = ProcessOf(show);
  EXPECT_TRUE(e2e::WaitFor([&] {
    e2e::PressKey(VK_SPACE);
    return WaitForSingleObject(process, 200) == WAIT_OBJECT_0;
  }));
  CloseHandle(process);
}

TEST_F(Install, TheShowRunsOnTheSamplesAndEndsByAKey) {
  ASSERT_TRUE(install(packages.setup));
  e2e::RunningProgram show(screenSaver().value_or(L""), L"/s");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
  EXPECT_NE(package::ReadWholeFile(settingsFile()).find("0=" + std::string("C:\\users")), std::string::npos)
      << "the first start puts the samples into the list";
}

TEST_F(Install, GoesIntoAnotherFolderWhenItIsTold) {
  const std::wstring other =
      package::ProfileFolder() + L"\\Eigene Bilder \u0444\u043E\u0442\u043E \u5199\u771F";
  const package::UserState before = package::ReadUserState();
  ASSERT_TRUE(install(packages.setup, L"/D=" + other));
  EXPECT_EQ(folder(), other);
  EXPECT_FALSE(Exists(proposedFolder()));
  // With blanks the setting is the short form of the path; it starts the same program.
  const std::wstring saver = screenSaver().value_or(L"");
  EXPECT_EQ(saver.find(L' '), std::wstring::npos);
  e2e::RunningProgram show(saver, L"/s");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(show.endsByKey());
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  std::string difference;
  e2e::WaitFor([&] { return (difference = Difference(before, package::ReadUserState())).empty(); });
  EXPECT_EQ(difference, "");
}

TEST_F(Install, NeverRemovesWhatItDidNotBring) {
  ASSERT_TRUE(install(packages.setup));
  package::WriteWholeFile(folder() + L"\\holiday.jpg", "mine");
  package::WriteWholeFile(folder() + L"\\image2.gif", "mine too");
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  EXPECT_EQ(package::ReadWholeFile(folder() + L"\\holiday.jpg"), "mine");
  EXPECT_EQ(package::ReadWholeFile(folder() + L"\\image2.gif"), "mine too");
  EXPECT_FALSE(Exists(folder() + L"\\image1.gif"));
  EXPECT_FALSE(Exists(program()));
}

}  // namespace
