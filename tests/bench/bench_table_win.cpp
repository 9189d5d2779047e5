#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>

#include "bench/bench_table.h"

namespace bench {

namespace {

double NowMs() {
  LARGE_INTEGER count;
  LARGE_INTEGER perSecond;
  QueryPerformanceCounter(&count);
  QueryPerformanceFrequency(&perSecond);
  return static_cast<double>(count.QuadPart) * 1000.0 / static_cast<double>(perSecond.QuadPart);
}

}  // namespace

double MedianMs(const std::function<void()>& work) {
  std::array<double, 5> runs{};
  for (double& run : runs) {
    const double start = NowMs();
    work();
    run = NowMs() - start;
  }
  std::sort(runs.begin(), runs.end());
  return runs[2];
}

void PrintRow(const std::string& work, const std::string& reference, double ratio, const std::string& bar) {
  std::printf("%-52s | %-52s | %10.2f | %s\n", work.c_str(), reference.c_str(), ratio, bar.c_str());
  std::fflush(stdout);
}

}  // namespace bench
