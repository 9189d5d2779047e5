// The small seams of the machine, against the machine.
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <thread>

#include "os/clock_win.h"
#include "os/desktop.h"
#include "os/handles_win.h"
#include "os/instance.h"
#include "os/machine_facts.h"
#include "os/passwords.h"
#include "os/paths.h"
#include "os/shell.h"
#include "os/window_class_win.h"
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

TEST(MachineFactsWin, IsTheFamilyThatTheSystemSaysItIs) {
  const std::int32_t expected = GetVersion() & 0x80000000U ? 1 : os::kNtFamily;
  EXPECT_EQ(os::MakeMachineFacts()->platformId(), expected);
}

struct RegistryWin : testing::Test {
  static constexpr const char* kKey = "Software\\LumoraTests\\Registry";
  std::unique_ptr<os::MachineFacts> facts = os::MakeMachineFacts();
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
    const auto value = facts->readUserValue(kKey, "Flag");
    return value ? startup::PasswordFlagText(*value) : "(none)";
  }
};

TEST_F(RegistryWin, ReadsANumberAsItsFourBytes) {
  set(REG_DWORD, std::string("\x01\x02\x00\x00", 4));
  const auto value = facts->readUserValue(kKey, "Flag");
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
  EXPECT_FALSE(facts->readUserValue("Software\\LumoraTests\\NoSuchKey", "Flag"));
}

TEST_F(RegistryWin, AValueBeyondTheBufferIsNothing) {
  set(REG_SZ, std::string(254, '1') + '\0');
  EXPECT_EQ(text(), std::string(254, '1'));
  set(REG_SZ, std::string(255, '1') + '\0');
  EXPECT_EQ(text(), "(none)");
}

TEST(DesktopWin, CursorCountsByOneAndReturnsTheCounter) {
  const auto desktop = os::MakeDesktop();
  const int start = desktop->showCursor(false);
  EXPECT_EQ(desktop->showCursor(false), start - 1);
  EXPECT_EQ(desktop->showCursor(true), start);
  desktop->showCursor(true);
}

TEST(DesktopWin, TheLoopsEndOneBeyondTheirBounds) {
  const auto desktop = os::MakeDesktop();
  startup::HideCursor(*desktop);
  EXPECT_EQ(desktop->showCursor(true), -5) << "it had come to -6";
  startup::ShowCursor(*desktop);
  EXPECT_EQ(desktop->showCursor(false), 5) << "it had come to 6";
  while (desktop->showCursor(false) > 0) {
  }
}

TEST(DesktopWin, APlaceBeyondTheScreenIsItsCorner) {
  const auto desktop = os::MakeDesktop();
  desktop->moveCursor(100, 120);
  POINT place{};
  GetCursorPos(&place);
  EXPECT_EQ(place.x, 100);
  EXPECT_EQ(place.y, 120);
  desktop->moveCursor(GetSystemMetrics(SM_CXSCREEN) * 15 + 12, GetSystemMetrics(SM_CYSCREEN) * 15 + 12);
  GetCursorPos(&place);
  EXPECT_EQ(place.x, GetSystemMetrics(SM_CXSCREEN) - 1);
  EXPECT_EQ(place.y, GetSystemMetrics(SM_CYSCREEN) - 1);
}

// A taskbar of the test's own, on this thread or on one that does not answer.
class OwnTaskbar {
 public:
  OwnTaskbar() {
    os::RegisterWindowClass(L"Shell_TrayWnd", Procedure);
    window_.reset(CreateWindowExW(WS_EX_TOPMOST, L"Shell_TrayWnd", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 20,
                                  nullptr, nullptr, GetModuleHandleW(nullptr), this));
  }

  std::intptr_t handle() const { return reinterpret_cast<std::intptr_t>(window_.get()); }
  bool isVisible() const { return IsWindowVisible(window_.get()) != FALSE; }

  // Takes what was put into this thread's queue.
  static void answer() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }

  WINDOWPOS lastRequest{};

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = os::ObjectOf<OwnTaskbar>(window, message, lParam);
    if (self && message == WM_WINDOWPOSCHANGING) self->lastRequest = *reinterpret_cast<WINDOWPOS*>(lParam);
    return DefWindowProcW(window, message, wParam, lParam);
  }

  os::OwnedWindow window_;
};

TEST(DesktopWin, TheTaskbarIsFoundByItsClassAndHiddenAndShown) {
  const OwnTaskbar bar;
  const auto desktop = os::MakeDesktop();
  EXPECT_EQ(desktop->findTaskbar(), bar.handle());
  desktop->hideTaskbar(desktop->findTaskbar());
  OwnTaskbar::answer();
  EXPECT_FALSE(bar.isVisible());
  desktop->showTaskbar(desktop->findTaskbar());
  OwnTaskbar::answer();
  EXPECT_TRUE(bar.isVisible());
}

TEST(DesktopWin, TheTaskbarIsAskedForPositionAndSizeZero) {
  const OwnTaskbar bar;
  const auto desktop = os::MakeDesktop();
  for (const bool show : {false, true}) {
    show ? desktop->showTaskbar(bar.handle()) : desktop->hideTaskbar(bar.handle());
    OwnTaskbar::answer();
    EXPECT_EQ(bar.lastRequest.x, 0);
    EXPECT_EQ(bar.lastRequest.y, 0);
    EXPECT_EQ(bar.lastRequest.cx, 0);
    EXPECT_EQ(bar.lastRequest.cy, 0);
    EXPECT_EQ(bar.lastRequest.hwndInsertAfter, nullptr);
    EXPECT_EQ(bar.lastRequest.flags & (SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER), 0U);
    EXPECT_NE(bar.lastRequest.flags & (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW), 0U);
  }
}

TEST(DesktopWin, AHiddenTaskbarHasOurMarkUntilItIsShown) {
  const OwnTaskbar bar;
  EXPECT_EQ(os::MakeDesktop()->findMarkedTaskbar(), 0);
  os::MakeDesktop()->hideTaskbar(bar.handle());
  EXPECT_EQ(os::MakeDesktop()->findMarkedTaskbar(), bar.handle()) << "whoever looks sees it";
  os::MakeDesktop()->showTaskbar(bar.handle());
  EXPECT_EQ(os::MakeDesktop()->findMarkedTaskbar(), 0);
  ShowWindow(reinterpret_cast<HWND>(bar.handle()), SW_HIDE);
  EXPECT_EQ(os::MakeDesktop()->findMarkedTaskbar(), 0) << "hidden by somebody else";
}

TEST(DesktopWin, ATaskbarWhoseOwnerDoesNotAnswerIsNotWaitedFor) {
  const os::OwnedHandle made(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const os::OwnedHandle enough(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  std::intptr_t window = 0;
  std::thread owner([&] {
    const OwnTaskbar bar;
    window = bar.handle();
    SetEvent(made.get());
    WaitForSingleObject(enough.get(), 20'000);  // takes no message meanwhile
    OwnTaskbar::answer();
    EXPECT_TRUE(bar.isVisible());
  });
  ASSERT_EQ(WaitForSingleObject(made.get(), 10'000), WAIT_OBJECT_0);
  const ULONGLONG start = GetTickCount64();
  const auto desktop = os::MakeDesktop();
  desktop->hideTaskbar(window);
  desktop->showTaskbar(window);
  EXPECT_LT(GetTickCount64() - start, 10'000U) << "both calls came back while the owner slept";
  SetEvent(enough.get());
  owner.join();
}

TEST(DesktopWin, TaskbarZeroIsNone) {
  const auto desktop = os::MakeDesktop();
  desktop->hideTaskbar(0);
  desktop->showTaskbar(0);
}

TEST(DesktopWin, TheSystemKnowsThatASaverRuns) {
  const auto desktop = os::MakeDesktop();
  BOOL running = FALSE;
  desktop->setScreenSaverRunning(true);
  SystemParametersInfoW(SPI_GETSCREENSAVERRUNNING, 0, &running, 0);
  EXPECT_TRUE(running);
  desktop->setScreenSaverRunning(false);
  SystemParametersInfoW(SPI_GETSCREENSAVERRUNNING, 0, &running, 0);
  EXPECT_FALSE(running);
}

TEST(PasswordsWin, WithoutADialogNothingIsRefusedAndChangingEndsQuietly) {
  std::array<wchar_t, MAX_PATH> folder{};
  GetSystemDirectoryW(folder.data(), MAX_PATH);
  const std::wstring provider = std::wstring(folder.data()) + L"\\password.cpl";
  if (GetFileAttributesW(provider.c_str()) != INVALID_FILE_ATTRIBUTES) GTEST_SKIP() << "this system has one";
  const auto passwords = os::MakePasswords();
  EXPECT_TRUE(passwords->verify(0));
  passwords->change(0);
}

TEST(InstanceWin, ASecondOneFindsTheMarkOfTheFirst) {
  const auto first = os::MakeInstance("LumoraTestInstance");
  const auto second = os::MakeInstance("LumoraTestInstance");
  EXPECT_TRUE(first->becomeOnly());
  EXPECT_TRUE(first->becomeOnly()) << "it is still the one";
  EXPECT_FALSE(second->becomeOnly());
  EXPECT_FALSE(second->becomeOnly()) << "asking leaves no mark";
  first->release();
  EXPECT_TRUE(second->becomeOnly());
  EXPECT_FALSE(first->becomeOnly());
}

TEST(InstanceWin, TheMarkGoesWithItsOwnerAndHasItsName) {
  const auto second = os::MakeInstance("LumoraTestInstance");
  {
    const auto first = os::MakeInstance("LumoraTestInstance");
    EXPECT_TRUE(first->becomeOnly());
    EXPECT_TRUE(os::MakeInstance("LumoraTestOther")->becomeOnly());
  }
  EXPECT_TRUE(second->becomeOnly());
}

TEST(MachineFactsWin, KnowTheProgramsFileAndItsCommandLine) {
  const auto facts = os::MakeMachineFacts();
  EXPECT_TRUE(facts->programPath().ends_with(".exe")) << facts->programPath();
  EXPECT_FALSE(os::FolderOf(facts->programPath()).empty());
  EXPECT_NE(facts->commandLine().find("lumora_win_tests"), std::string::npos);
}

TEST(ShellWin, GivesTheShellsResult) {
  EXPECT_EQ(os::MakeShell()->open("C:\\no such folder\\no such file.htm"), ERROR_FILE_NOT_FOUND);
}

}  // namespace
