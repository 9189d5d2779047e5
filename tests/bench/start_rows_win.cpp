#include <windows.h>

#include <algorithm>
#include <array>

#include "bench/bare_window.h"
#include "bench/bench_table.h"
#include "bench/rows.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"

namespace bench {

namespace {

struct Times {
  double startMs = 0;
  double endMs = 0;
};

// From the start of the process to a filled screen, and from a key to its end.
Times RunOnce(const std::wstring& program, const std::wstring& arguments, const wchar_t* className) {
  Times times;
  const double start = NowMs();
  e2e::RunningProgram process(program, arguments);
  e2e::WaitFor([] { return e2e::ScreenPixel(2, 2) == 0xFF800000U; });
  times.startMs = NowMs() - start;
  // The key must find the window with the keyboard, and no other.
  e2e::WaitFor([&] { return GetForegroundWindow() == process.findWindow(className); }, 3000);
  const double pressed = NowMs();
  e2e::PressKey(VK_SPACE);
  process.waitForEnd();
  times.endMs = NowMs() - pressed;
  e2e::WaitFor([] { return e2e::ScreenPixel(2, 2) != 0xFF800000U; }, 3000);
  return times;
}

Times MedianOfFive(const std::wstring& program, const std::wstring& arguments, const wchar_t* className) {
  std::array<double, 5> starts{};
  std::array<double, 5> ends{};
  for (std::size_t i = 0; i < starts.size(); ++i) {
    const Times times = RunOnce(program, arguments, className);
    starts[i] = times.startMs;
    ends[i] = times.endMs;
  }
  std::sort(starts.begin(), starts.end());
  std::sort(ends.begin(), ends.end());
  return {starts[2], ends[2]};
}

}  // namespace

void BenchStartAndEnd() {
  wchar_t self[MAX_PATH];
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  const Times bare = MedianOfFive(self, L"--bare", kBareWindowClass);
  e2e::ProgramFolder folder;
  folder.set("background/newBackColor", "128");
  folder.writeSettings();
  const Times show = MedianOfFive(folder.program(), L"/S", L"WindowsScreenSaverClass");
  PrintRow("start to background on the screen", "a bare program with a filled window",
           show.startMs / bare.startMs, "<= 1.3 times");
  PrintRow("end: key to process gone", "the same bare program", show.endMs / bare.endMs, "<= 1.3 times");
}

}  // namespace bench
