#include "startup/crash_guard_win.h"

#include <atomic>
#include <csignal>
#include <cstdlib>

namespace startup {

namespace {

constexpr UINT kCrashExitCode = 3;             // that of abort()
constexpr ULONG kStackForHandler = 64 * 1024;  // for the filter to run on after the stack is exhausted

std::atomic<SystemRestore*> guarded = nullptr;

// Taken out first, so that a crash of the restoring itself does not come back here.
void RestoreOnce() {
  if (SystemRestore* restore = guarded.exchange(nullptr)) restore->restore();
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

CrashGuard::~CrashGuard() {
  guarded = nullptr;
  SetUnhandledExceptionFilter(filterBefore_);
  std::set_terminate(terminateBefore_);
  std::signal(SIGABRT, abortBefore_);
}

}  // namespace startup
