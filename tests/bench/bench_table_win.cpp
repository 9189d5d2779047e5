#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "bench/bench_table.h"

namespace bench {

namespace {

double TimeOf(const std::function<void()>& work) {
  const double start = NowMs();
  work();
  return NowMs() - start;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace

double NowMs() {
  LARGE_INTEGER count;
  LARGE_INTEGER perSecond;
  QueryPerformanceCounter(&count);
  QueryPerformanceFrequency(&perSecond);
  return static_cast<double>(count.QuadPart) * 1000.0 / static_cast<double>(perSecond.QuadPart);
}

double MedianMs(const std::function<void()>& work) {
  std::vector<double> runs(5);
  for (double& run : runs) run = TimeOf(work);
  return Median(std::move(runs));
}

double TimeRatio(const std::function<void()>& work, const std::function<void()>& reference,
                 const std::function<void()>& before, int runs) {
  std::vector<double> works;
  std::vector<double> references;
  for (int i = 0; i < runs; ++i) {
    references.push_back(TimeOf(reference));
    before();
    works.push_back(TimeOf(work));
  }
  return Median(std::move(works)) / Median(std::move(references));
}

void PrintRow(const std::string& work, const std::string& reference, double ratio, const std::string& bar) {
  std::printf("%-58s | %-46s | %10.3f | %s\n", work.c_str(), reference.c_str(), ratio, bar.c_str());
  std::fflush(stdout);
}

}  // namespace bench
