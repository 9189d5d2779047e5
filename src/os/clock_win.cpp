#include "os/clock_win.h"

#include <windows.h>

namespace os {

ClockWin::ClockWin() {
  LARGE_INTEGER frequency{};
  QueryPerformanceFrequency(&frequency);
  countsPerSecond_ = frequency.QuadPart;
}

LocalTime ClockWin::now() const {
  SYSTEMTIME time{};
  GetLocalTime(&time);
  return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, time.wMilliseconds};
}

std::int64_t ClockWin::tickMs() const {
  LARGE_INTEGER counter{};
  QueryPerformanceCounter(&counter);
  // Seconds apart from the rest, so that the product stays far from 64 bits.
  return counter.QuadPart / countsPerSecond_ * 1000 +
         counter.QuadPart % countsPerSecond_ * 1000 / countsPerSecond_;
}

}  // namespace os
