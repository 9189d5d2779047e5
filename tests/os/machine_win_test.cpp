// The small seams of the machine, against the machine.
#include <gtest/gtest.h>
#include <windows.h>

#include <array>

#include "os/clock_win.h"
#include "os/cursor_win.h"
#include "os/handles_win.h"
#include "os/instance_win.h"
#include "os/passwords_win.h"
#include "os/program_win.h"
#include "os/registry_win.h"
#include "os/system_facts.h"
#include "os/system_flags_win.h"
#include "os/system_version_win.h"
#include "os/taskbar_win.h"
#include "startup/cursor_rules.h"
#include "startup/password_flag.h"

namespace {

TEST(ClockWin, TellsTheLocalTimeAndATickThatGoesOn) {
  const os::ClockWin clock;
  SYSTEMTIME before{};
  GetLocalTime(&before);
  const os::LocalTime now = clock.now();
  SYSTEMTIME after{};
  GetLocalTime(&after);
  EXPECT_GE(now.year, before.wYear);
  EXPECT_LE(now.year, after.wYear);
  EXPECT_TRUE(now.minute == before.wMinute || now.minute == after.wMinute);
  const std::int64_t start = clock.tickMs();
  Sleep(50);  // what is measured
  const std::int64_t passed = clock.tickMs() - start;
  EXPECT_GE(passed, 49);
  EXPECT_LT(passed, 5000);
}

TEST(SystemVersionWin, IsTheFamilyThatTheSystemSaysItIs) {
  const std::int32_t expected = GetVersion() & 0x80000000U ? 1 : os::kNtFamily;
  EXPECT_EQ(os::SystemVersionWin().platformId(), expected);
}

struct RegistryWin : testing::Test {
  static constexpr const char* kKey = "Software\\LumoraTests\\Registry";
  os::RegistryWin registry;
  os::OwnedKey key;

  RegistryWin() {
    HKEY opened = nullptr;
    RegCreateKeyExA(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &opened, nullptr);
    key.reset(opened);
  }
  ~RegistryWin() override {
    key.reset();
    RegDeleteKeyA(HKEY_CURRENT_USER, kKey);
    RegDeleteKeyA(HKEY_CURRENT_USER, "Software\\LumoraTests");
  }

  void set(DWORD type, const std::string& bytes) {
    RegSetValueExA(key.get(), "Flag", 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                   static_cast<DWORD>(bytes.size()));
  }
  std::string text() {
    const auto value = registry.readUserValue(kKey, "Flag");
    return value ? startup::PasswordFlagText(*value) : "(none)";
  }
};

TEST_F(RegistryWin, ReadsANumberAsItsFourBytes) {
  set(REG_DWORD, std::string("\x01\x02\x00\x00", 4));
  const auto value = registry.readUserValue(kKey, "Flag");
  ASSERT_TRUE(value);
  EXPECT_EQ(value->type, os::kRegistryNumber);
  EXPECT_EQ(value->bytes, std::string("\x01\x02\x00\x00", 4));
  EXPECT_EQ(text(), "513");
}

TEST_F(RegistryWin, ReadsATextThatBecomesTheFlag) {
  set(REG_SZ, std::string("1\0", 2));
  EXPECT_EQ(text(), "1");
  set(REG_SZ, std::string(" 1 \0", 4));
  EXPECT_EQ(text(), " 1 ");
  set(REG_EXPAND_SZ, std::string("2\0", 2));
  EXPECT_EQ(text(), "2");
}

TEST_F(RegistryWin, AnAbsentKeyOrValueIsNothing) {
  EXPECT_EQ(text(), "(none)");
  EXPECT_FALSE(registry.readUserValue("Software\\LumoraTests\\NoSuchKey", "Flag"));
}

TEST_F(RegistryWin, AValueBeyondTheBufferIsNothing) {
  set(REG_SZ, std::string(254, '1') + '\0');
  EXPECT_EQ(text(), std::string(254, '1'));
  set(REG_SZ, std::string(255, '1') + '\0');
  EXPECT_EQ(text(), "(none)");
}

TEST(CursorWin, CountsByOneAndReturnsTheCounter) {
  os::CursorWin cursor;
  const int start = cursor.showCounter(false);
  EXPECT_EQ(cursor.showCounter(false), start - 1);
  EXPECT_EQ(cursor.showCounter(true), start);
  cursor.showCounter(true);
}

TEST(CursorWin, TheLoopsEndOneBeyondTheirBounds) {
  os::CursorWin cursor;
  startup::HideCursor(cursor);
  EXPECT_EQ(cursor.showCounter(true), -5) << "it had come to -6";
  startup::ShowCursor(cursor);
  EXPECT_EQ(cursor.showCounter(false), 5) << "it had come to 6";
  while (cursor.showCounter(false) > 0) {
  }
}

TEST(CursorWin, APlaceBeyondTheScreenIsItsCorner) {
  os::CursorWin cursor;
  cursor.moveTo(100, 120);
  POINT place{};
  GetCursorPos(&place);
  EXPECT_EQ(place.x, 100);
  EXPECT_EQ(place.y, 120);
  cursor.moveTo(GetSystemMetrics(SM_CXSCREEN) * 15 + 12, GetSystemMetrics(SM_CYSCREEN) * 15 + 12);
  GetCursorPos(&place);
  EXPECT_EQ(place.x, GetSystemMetrics(SM_CXSCREEN) - 1);
  EXPECT_EQ(place.y, GetSystemMetrics(SM_CYSCREEN) - 1);
}

TEST(TaskbarWin, IsFoundByItsClassAndHiddenAndShown) {
  WNDCLASSW description{};
  description.lpfnWndProc = DefWindowProcW;
  description.hInstance = GetModuleHandleW(nullptr);
  description.lpszClassName = L"Shell_TrayWnd";
  RegisterClassW(&description);
  const os::OwnedWindow bar(CreateWindowExW(WS_EX_TOPMOST, L"Shell_TrayWnd", L"", WS_POPUP | WS_VISIBLE, 0, 0,
                                            50, 20, nullptr, nullptr, description.hInstance, nullptr));
  os::TaskbarWin taskbar;
  EXPECT_EQ(taskbar.find(), reinterpret_cast<std::intptr_t>(bar.get()));
  taskbar.hide(taskbar.find());
  EXPECT_FALSE(IsWindowVisible(bar.get()));
  taskbar.show(taskbar.find());
  EXPECT_TRUE(IsWindowVisible(bar.get()));
}

TEST(TaskbarWin, HandleZeroDoesNothing) {
  os::TaskbarWin taskbar;
  taskbar.hide(0);
  taskbar.show(0);
}

TEST(SystemFlagsWin, TheSystemKnowsThatASaverRuns) {
  os::SystemFlagsWin flags;
  BOOL running = FALSE;
  flags.setScreenSaverRunning(true);
  SystemParametersInfoW(SPI_GETSCREENSAVERRUNNING, 0, &running, 0);
  EXPECT_TRUE(running);
  flags.setScreenSaverRunning(false);
  SystemParametersInfoW(SPI_GETSCREENSAVERRUNNING, 0, &running, 0);
  EXPECT_FALSE(running);
}

TEST(PasswordsWin, WithoutADialogNothingIsRefusedAndChangingEndsQuietly) {
  std::array<wchar_t, MAX_PATH> folder{};
  GetSystemDirectoryW(folder.data(), MAX_PATH);
  const std::wstring provider = std::wstring(folder.data()) + L"\\password.cpl";
  if (GetFileAttributesW(provider.c_str()) != INVALID_FILE_ATTRIBUTES) GTEST_SKIP() << "this system has one";
  os::PasswordsWin passwords;
  EXPECT_TRUE(passwords.verify(0));
  passwords.change(0);
}

TEST(InstanceWin, ASecondOneFindsTheMarkOfTheFirst) {
  os::InstanceWin first("LumoraTestInstance");
  os::InstanceWin second("LumoraTestInstance");
  EXPECT_TRUE(first.becomeOnly());
  EXPECT_TRUE(first.becomeOnly()) << "it is still the one";
  EXPECT_FALSE(second.becomeOnly());
  EXPECT_FALSE(second.becomeOnly()) << "asking leaves no mark";
  first.release();
  EXPECT_TRUE(second.becomeOnly());
  EXPECT_FALSE(first.becomeOnly());
}

TEST(InstanceWin, TheMarkGoesWithItsOwnerAndHasItsName) {
  os::InstanceWin second("LumoraTestInstance");
  {
    os::InstanceWin first("LumoraTestInstance");
    EXPECT_TRUE(first.becomeOnly());
    EXPECT_TRUE(os::InstanceWin("LumoraTestOther").becomeOnly());
  }
  EXPECT_TRUE(second.becomeOnly());
}

TEST(ProgramWin, KnowsItsFileItsFolderAndItsCommandLine) {
  const os::ProgramWin program;
  EXPECT_TRUE(program.path().ends_with(".exe")) << program.path();
  EXPECT_EQ(program.path().substr(0, program.folder().size()), program.folder());
  EXPECT_FALSE(program.folder().empty());
  EXPECT_NE(program.commandLine().find("lumora_win_tests"), std::string::npos);
}

}  // namespace
