#include "startup/crash_guard_win.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <utility>

#include "os/handles_win.h"

namespace startup {

namespace {

constexpr UINT kCrashExitCode = 3;             // that of abort()
constexpr ULONG kStackForHandler = 64 * 1024;  // for the filter to run on after the stack is exhausted

constexpr DWORD kFarewellMs = 1000;

std::atomic<SystemRestore*> guarded = nullptr;
std::atomic<const std::function<void()>*> farewellOfShow = nullptr;

DWORD WINAPI SayFarewell(void* farewell) {
  (*static_cast<const std::function<void()>*>(farewell))();
  return 0;
}

// Each taken out first, so that a crash of the restoring or of the farewell does not come back here.
void RestoreOnce() {
  if (SystemRestore* restore = guarded.exchange(nullptr)) restore->restore();
  const std::function<void()>* farewell = farewellOfShow.exchange(nullptr);
  if (!farewell) return;
  const os::OwnedHandle thread(
      CreateThread(nullptr, 0, SayFarewell, const_cast<std::function<void()>*>(farewell), 0, nullptr));
  if (thread) WaitForSingleObject(thread.get(), kFarewellMs);
}

[[noreturn]] void End(UINT exitCode) {
  RestoreOnce();
  TerminateProcess(GetCurrentProcess(), exitCode);
  std::_Exit(static_cast<int>(exitCode));  // not reached
}

LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS* crash) { End(crash->ExceptionRecord->ExceptionCode); }

void OnTerminate() { End(kCrashExitCode); }

void OnAbort(int) { End(kCrashExitCode); }

}  // namespace

CrashGuard::CrashGuard(SystemRestore& restore) {
  guarded = &restore;
  ULONG stack = kStackForHandler;
  SetThreadStackGuarantee(&stack);
  filterBefore_ = SetUnhandledExceptionFilter(OnUnhandledException);
  terminateBefore_ = std::set_terminate(OnTerminate);
  abortBefore_ = std::signal(SIGABRT, OnAbort);
  static const int registered = std::atexit(RestoreOnce);
  (void)registered;
}

void CrashGuard::setFarewell(std::function<void()> farewell) {
  farewellOfShow = nullptr;
  farewell_ = std::move(farewell);
  if (farewell_) farewellOfShow = &farewell_;
}

CrashGuard::~CrashGuard() {
  guarded = nullptr;
  farewellOfShow = nullptr;
  SetUnhandledExceptionFilter(filterBefore_);
  std::set_terminate(terminateBefore_);
  std::signal(SIGABRT, abortBefore_);
}

}  // namespace startup
