#include <gtest/gtest.h>

#include <string>

#include "e2e/keyboard.h"
#include "e2e/pointer.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/handles_win.h"
#include "support/colors.h"

// These need Wine: it can give itself out as a system of the older family to one program.

namespace {

constexpr const wchar_t* kVersionKey = L"Software\\Wine\\AppDefaults\\Lumora.scr";
constexpr const wchar_t* kDesktopKey = L"Control Panel\\Desktop";

bool RunsUnderWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

std::wstring SystemFolder() {
  wchar_t folder[MAX_PATH];
  GetSystemDirectoryW(folder, MAX_PATH);
  return folder;
}

std::wstring OwnFolder() {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::wstring whole = path;
  return whole.substr(0, whole.rfind(L'\\'));
}

void WriteText(const std::wstring& path, const std::string& text) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  DWORD written = 0;
  WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  CloseHandle(file);
}

std::string ReadText(const std::wstring& path) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return {};
  char text[4096];
  DWORD got = 0;
  ReadFile(file, text, sizeof(text), &got, nullptr);
  CloseHandle(file);
  return std::string(text, got);
}

// The older family with a password, for Lumora.scr alone, with the stand-in for the system's password
// library.
class PasswordTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!RunsUnderWine()) GTEST_SKIP() << "needs Wine";
    RegSetKeyValueW(HKEY_CURRENT_USER, kVersionKey, L"Version", REG_SZ, L"win98", sizeof(L"win98"));
    const DWORD on = 1;
    RegSetKeyValueW(HKEY_CURRENT_USER, kDesktopKey, L"ScreenSaveUsePassword", REG_DWORD, &on, sizeof(on));
    ASSERT_TRUE(CopyFileW((OwnFolder() + L"\\password_stand_in.dll").c_str(), library_.c_str(), FALSE));
    answer_ = folder.path() + L"\\answer.txt";
    SetEnvironmentVariableW(L"LUMORA_PASSWORD_ANSWER", answer_.c_str());
    folder.set("background/newBackColor", "128");
    folder.set("image/mouseSensitivity", "30");
    folder.writeSettings();
  }

  void TearDown() override {
    RegDeleteKeyW(HKEY_CURRENT_USER, kVersionKey);
    RegDeleteKeyValueW(HKEY_CURRENT_USER, kDesktopKey, L"ScreenSaveUsePassword");
    SetEnvironmentVariableW(L"LUMORA_PASSWORD_ANSWER", nullptr);
    DeleteFileW(library_.c_str());
  }

  void answer(const char* text) const { WriteText(answer_, text); }
  std::string calls() const { return ReadText(answer_ + L".calls"); }

  e2e::ProgramFolder folder;

 private:
  std::wstring library_ = SystemFolder() + L"\\password.cpl";
  std::wstring answer_;
};

bool ShowIsOnTheScreen() {
  return e2e::WaitFor([] { return e2e::ScreenPixel(2, 2) == support::kDarkRedPixel; });
}

TEST_F(PasswordTest, AnAcceptedPasswordEndsTheShowAndTheRunningFlagWasSetUntilThen) {
  answer("accept");
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  ASSERT_TRUE(ShowIsOnTheScreen());
  EXPECT_TRUE(e2e::PressUntil(
      show.waitForShow(), [&] { return !show.isRunning(); }, VK_SPACE));
  EXPECT_EQ(calls(), "verify window=valid running=1\n");
}

TEST_F(PasswordTest, ARefusedPasswordLeavesTheShowOnWithTheCursorInTheFarCorner) {
  answer("refuse");
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  ASSERT_TRUE(ShowIsOnTheScreen());
  e2e::MoveMouseTo(300, 300);
  ASSERT_TRUE(e2e::PressUntil(
      show.waitForShow(), [&] { return !calls().empty(); }, VK_SPACE));
  EXPECT_TRUE(e2e::WaitFor([] {
    POINT place;
    GetCursorPos(&place);
    const base::PixelSize screen = e2e::ScreenSize();
    return place.x == screen.width - 1 && place.y == screen.height - 1;
  }));
  EXPECT_TRUE(show.isRunning());
  EXPECT_TRUE(ShowIsOnTheScreen());
  answer("accept");
  EXPECT_TRUE(e2e::PressUntil(
      show.waitForShow(), [&] { return !show.isRunning(); }, VK_SPACE));
}

TEST_F(PasswordTest, OnTheNtFamilyNobodyIsAsked) {
  RegDeleteKeyW(HKEY_CURRENT_USER, kVersionKey);
  answer("refuse");
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  ASSERT_TRUE(ShowIsOnTheScreen());
  EXPECT_TRUE(e2e::PressUntil(
      show.waitForShow(), [&] { return !show.isRunning(); }, VK_SPACE));
  EXPECT_EQ(calls(), "");
}

TEST_F(PasswordTest, ALibraryPlantedBesideTheProgramIsNotAsked) {
  answer("refuse");
  const std::wstring planted = folder.path() + L"\\password.cpl";
  ASSERT_TRUE(CopyFileW((OwnFolder() + L"\\marking_stand_in.dll").c_str(), planted.c_str(), FALSE));
  e2e::RunningProgram show(folder.program(), L"/S", folder.path());
  ASSERT_NE(show.waitForShow(), nullptr);
  ASSERT_TRUE(ShowIsOnTheScreen());
  ASSERT_TRUE(e2e::PressUntil(
      show.waitForShow(), [&] { return !calls().empty(); }, VK_SPACE));
  EXPECT_TRUE(show.isRunning()) << "the system's library refused";
  answer("accept");
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(ReadText(folder.path() + L"\\loaded.txt"), "");
}

TEST(PasswordChange, WithoutAProviderEndsQuietly) {
  e2e::ProgramFolder folder;
  folder.writeSettings();
  e2e::RunningProgram change(folder.program(), L"/a 4711");
  EXPECT_TRUE(change.waitForEnd());
  EXPECT_EQ(change.exitCode(), 0U);
}

// The stand-in in the place of the system's network provider library, for Lumora.scr alone.
class NetworkProvider {
 public:
  NetworkProvider() {
    putBack();  // what a killed run may have left
    MoveFileW(library_.c_str(), kept_.c_str());
    installed_ =
        CopyFileW((OwnFolder() + L"\\password_stand_in.dll").c_str(), library_.c_str(), TRUE) != FALSE;
    RegSetKeyValueW(HKEY_CURRENT_USER, kOverridesKey, L"mpr", REG_SZ, L"native", sizeof(L"native"));
  }
  ~NetworkProvider() {
    RegDeleteKeyW(HKEY_CURRENT_USER, kOverridesKey);
    putBack();
  }
  NetworkProvider(const NetworkProvider&) = delete;
  NetworkProvider& operator=(const NetworkProvider&) = delete;

  bool isInstalled() const { return installed_; }

 private:
  static constexpr const wchar_t* kOverridesKey = L"Software\\Wine\\AppDefaults\\Lumora.scr\\DllOverrides";

  void putBack() const {
    if (GetFileAttributesW(kept_.c_str()) == INVALID_FILE_ATTRIBUTES) return;
    MoveFileExW(kept_.c_str(), library_.c_str(), MOVEFILE_REPLACE_EXISTING);
  }

  std::wstring library_ = SystemFolder() + L"\\mpr.dll";
  std::wstring kept_ = library_ + L".kept";
  bool installed_ = false;
};

TEST(PasswordChange, CallsTheSystemsProviderOnceWithTheWindowOfTheCommandLine) {
  if (!RunsUnderWine()) GTEST_SKIP() << "needs Wine";
  e2e::ProgramFolder folder;
  folder.writeSettings();
  const std::wstring answer = folder.path() + L"\\answer.txt";
  const NetworkProvider provider;
  ASSERT_TRUE(provider.isInstalled());
  SetEnvironmentVariableW(L"LUMORA_PASSWORD_ANSWER", answer.c_str());
  e2e::RunningProgram change(folder.program(), L"/a 4711");
  EXPECT_TRUE(change.waitForEnd());
  SetEnvironmentVariableW(L"LUMORA_PASSWORD_ANSWER", nullptr);
  EXPECT_EQ(change.exitCode(), 0U);
  EXPECT_EQ(ReadText(answer + L".calls"), "change SCRSAVE window=4711 0 0\n");
}

}  // namespace
