#include "bench/processor_time_win.h"

namespace bench {

double ProcessorMs(HANDLE process) {
  FILETIME made{};
  FILETIME ended{};
  FILETIME kernel{};
  FILETIME user{};
  GetProcessTimes(process, &made, &ended, &kernel, &user);
  return (static_cast<double>(kernel.dwLowDateTime) + static_cast<double>(user.dwLowDateTime)) / 10'000;
}

}  // namespace bench
