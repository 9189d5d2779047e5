// Crashes a process of its own in every way and looks whether it put the system back.
#include "startup/crash_guard_win.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>

#include "os/handles_win.h"
#include "os/utf16_win.h"

namespace {

constexpr const wchar_t* kCrashVariable = L"LUMORA_TEST_CRASH";
constexpr const wchar_t* kFarewellVariable = L"LUMORA_TEST_FAREWELL";
constexpr const wchar_t* kSignalVariable = L"LUMORA_TEST_SIGNAL";

std::wstring Variable(const wchar_t* name) {
  std::array<wchar_t, 200> value{};
  GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
  return value.data();
}

// A desktop whose taskbar, when it is shown, raises the count of a semaphore that the test's own process can
// see.
class SignallingDesktop : public os::Desktop {
 public:
  int showCursor(bool) override { return 0; }
  void moveCursor(int, int) override {}
  std::intptr_t findTaskbar() override { return 1; }
  std::intptr_t findMarkedTaskbar() override { return 0; }
  void hideTaskbar(std::intptr_t) override {}
  void showTaskbar(std::intptr_t) override {
    const os::OwnedHandle signal(
        OpenSemaphoreW(SEMAPHORE_MODIFY_STATE, FALSE, Variable(kSignalVariable).c_str()));
    ReleaseSemaphore(signal.get(), 1, nullptr);
  }
  void setScreenSaverRunning(bool) override {}
};

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winfinite-recursion"
int Recurse(volatile int* depth) {
  volatile int block[1000] = {*depth};
  *depth = *depth + 1;
  return Recurse(depth) + block[*depth % 1000];
}
#pragma GCC diagnostic pop

void CallAtTheEnd(const std::function<void()>& thrower) noexcept { thrower(); }

void CrashBy(const std::wstring& way) {
  if (way == L"access") {
    volatile int* nowhere = nullptr;
    *nowhere = 1;
  }
  if (way == L"throw") CallAtTheEnd([] { throw std::runtime_error("that nobody catches"); });
  if (way == L"abort") std::abort();
  if (way == L"exit") std::exit(9);
  if (way == L"stack") {
    volatile int depth = 0;
    Recurse(&depth);
  }
  if (way == L"raise") RaiseException(0xE0001234, 0, 0, nullptr);
}

// Raises the semaphore's count a second time, unless it is to go wrong.
std::function<void()> FarewellOf(const std::wstring& way) {
  if (way == L"crashes") {
    return [] { CrashBy(L"access"); };
  }
  if (way == L"hangs") return [] { Sleep(INFINITE); };
  if (way == L"said") return [] { SignallingDesktop().showTaskbar(1); };
  return nullptr;
}

// Runs this very test program again, for its crashing test alone. Gives the exit code and how often the
// taskbar was shown.
struct Outcome {
  DWORD exitCode = 0;
  int shown = 0;
};

Outcome RunCrashingProcess(const std::wstring& way) {
  const std::wstring signalName = L"Local\\LumoraTestCrash" + std::to_wstring(GetCurrentProcessId());
  const os::OwnedHandle signal(CreateSemaphoreW(nullptr, 0, 100, signalName.c_str()));
  SetEnvironmentVariableW(kCrashVariable, way.c_str());
  SetEnvironmentVariableW(kSignalVariable, signalName.c_str());
  std::array<wchar_t, MAX_PATH> path{};
  GetModuleFileNameW(nullptr, path.data(), MAX_PATH);
  std::wstring line = L"\"" + std::wstring(path.data()) +
                      L"\" --gtest_also_run_disabled_tests --gtest_filter=*.DISABLED_Crashes";
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESTDHANDLES;  // to nowhere: its report is none of this run's
  PROCESS_INFORMATION process{};
  CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process);
  SetEnvironmentVariableW(kCrashVariable, nullptr);
  const os::OwnedHandle owner(process.hProcess);
  const os::OwnedHandle thread(process.hThread);
  Outcome outcome;
  if (WaitForSingleObject(process.hProcess, 60'000) != WAIT_OBJECT_0) {
    TerminateProcess(process.hProcess, 77);
    ADD_FAILURE() << "the process hangs";
  }
  GetExitCodeProcess(process.hProcess, &outcome.exitCode);
  while (WaitForSingleObject(signal.get(), 0) == WAIT_OBJECT_0) ++outcome.shown;
  return outcome;
}

// Only does something in the process that the tests below start.
TEST(CrashGuardProcess, DISABLED_Crashes) {
  const std::wstring way = Variable(kCrashVariable);
  ASSERT_FALSE(way.empty()) << "to be started by the tests of the crash guard alone";
  SignallingDesktop desktop;
  startup::SystemRestore restore(desktop);
  startup::CrashGuard guard(restore);
  restore.hideTaskbar(restore.findTaskbar());
  guard.setFarewell(FarewellOf(Variable(kFarewellVariable)));
  // The test program catches crashes of its own; here they are to reach the process's end.
  testing::GTEST_FLAG(catch_exceptions) = false;
  CrashBy(way);
}

struct CrashGuard : testing::TestWithParam<const wchar_t*> {};

TEST_P(CrashGuard, PutsTheSystemBackExactlyOnce) {
  const Outcome outcome = RunCrashingProcess(GetParam());
  EXPECT_EQ(outcome.shown, 1);
  EXPECT_NE(outcome.exitCode, 0U);
  EXPECT_NE(outcome.exitCode, 77U);
}

TEST_P(CrashGuard, HasAFarewellSaid) {
  SetEnvironmentVariableW(kFarewellVariable, L"said");
  const Outcome outcome = RunCrashingProcess(GetParam());
  SetEnvironmentVariableW(kFarewellVariable, nullptr);
  EXPECT_EQ(outcome.shown, 2);
  EXPECT_NE(outcome.exitCode, 0U);
  EXPECT_NE(outcome.exitCode, 77U);
}

TEST(CrashGuardProcess, EndsThoughItsFarewellCrashesOrHangs) {
  for (const wchar_t* way : {L"crashes", L"hangs"}) {
    SetEnvironmentVariableW(kFarewellVariable, way);
    const Outcome outcome = RunCrashingProcess(L"throw");
    SetEnvironmentVariableW(kFarewellVariable, nullptr);
    EXPECT_EQ(outcome.shown, 1) << "the system was put back before";
    EXPECT_NE(outcome.exitCode, 0U);
    EXPECT_NE(outcome.exitCode, 77U);
  }
}

TEST(CrashGuardProcess, AnOrderlyEndHasNoFarewell) {
  SetEnvironmentVariableW(kFarewellVariable, L"said");
  const Outcome outcome = RunCrashingProcess(L"none");
  SetEnvironmentVariableW(kFarewellVariable, nullptr);
  EXPECT_EQ(outcome.shown, 1);
  EXPECT_EQ(outcome.exitCode, 0U);
}

INSTANTIATE_TEST_SUITE_P(Ways, CrashGuard,
                         testing::Values(L"access", L"throw", L"abort", L"exit", L"stack", L"raise"),
                         [](const auto& way) { return os::FromWide(way.param); });

TEST(CrashGuardProcess, EndsInOrderAndPutsTheSystemBackOnceToo) {
  const Outcome outcome = RunCrashingProcess(L"none");
  EXPECT_EQ(outcome.shown, 1);
  EXPECT_EQ(outcome.exitCode, 0U);
}

}  // namespace
