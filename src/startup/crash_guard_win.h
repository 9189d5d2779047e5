// The last resort of a show that crashes.
#pragma once

#include <windows.h>

#include <exception>
#include <functional>

#include "startup/system_restore.h"

namespace startup {

// While it lives, a crash of the process (an access violation, an exhausted stack, an exception that nobody
// caught, abort, exit from the middle) puts the system back and ends the process at once and without a
// message. One at a time. The end of the user's session is told to the show's window, which calls
// SystemRestore::restore() by itself.
class CrashGuard {
 public:
  explicit CrashGuard(SystemRestore& restore);
  ~CrashGuard();

  // What a crash does besides, once the system has been put back; null: nothing. It runs on a thread of its
  // own, with a stack and a second of its own, and the process ends whatever becomes of it.
  void setFarewell(std::function<void()> farewell);

  CrashGuard(const CrashGuard&) = delete;
  CrashGuard& operator=(const CrashGuard&) = delete;

 private:
  std::function<void()> farewell_;
  LPTOP_LEVEL_EXCEPTION_FILTER filterBefore_;
  std::terminate_handler terminateBefore_;
  void (*abortBefore_)(int);
};

}  // namespace startup
