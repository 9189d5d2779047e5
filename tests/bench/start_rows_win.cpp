#include <windows.h>

#include <algorithm>
#include <array>

#include "bench/bare_window.h"
#include "bench/bench_table.h"
#include "bench/rows.h"
#include "e2e/keyboard.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "support/colors.h"

namespace bench {

namespace {

constexpr double kPatienceMs = 5000;
constexpr std::size_t kRuns = 9;

struct Times {
  double startMs = 0;
  double endMs = 0;
};

// Looks every millisecond, in which a wait for a test's condition would look once in ten.
void AwaitBackground() {
  const double start = NowMs();
  while (e2e::ScreenPixel(2, 2) != support::kDarkRedPixel && NowMs() - start < kPatienceMs) Sleep(1);
}

// From the start of the process to a filled screen, and from a key to its end.
Times RunOnce(const std::wstring& program, const std::wstring& arguments, const wchar_t* className) {
  Times times;
  const double start = NowMs();
  e2e::RunningProgram process(program, arguments);
  AwaitBackground();
  times.startMs = NowMs() - start;
  // The key must find the window with the keyboard, and no other.
  e2e::WaitFor([&] { return GetForegroundWindow() == process.findWindow(className); }, 3000);
  const double pressed = NowMs();
  e2e::PressKey(VK_SPACE);
  WaitForSingleObject(process.process(), static_cast<DWORD>(kPatienceMs));
  times.endMs = NowMs() - pressed;
  e2e::WaitFor([] { return e2e::ScreenPixel(2, 2) != support::kDarkRedPixel; }, 3000);
  return times;
}

Times Median(const std::array<Times, kRuns>& runs) {
  std::array<double, kRuns> starts{};
  std::array<double, kRuns> ends{};
  std::ranges::transform(runs, starts.begin(), &Times::startMs);
  std::ranges::transform(runs, ends.begin(), &Times::endMs);
  std::ranges::sort(starts);
  std::ranges::sort(ends);
  return {starts[kRuns / 2], ends[kRuns / 2]};
}

}  // namespace

void BenchStartAndEnd() {
  wchar_t self[MAX_PATH];
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  e2e::ProgramFolder folder;
  folder.set("background/newBackColor", "128");
  folder.writeSettings();
  std::array<Times, kRuns> bareRuns;
  std::array<Times, kRuns> showRuns;
  for (std::size_t i = 0; i < kRuns; ++i) {
    bareRuns[i] = RunOnce(self, L"--bare", kBareWindowClass);
    showRuns[i] = RunOnce(folder.program(), L"/S", e2e::kShowClass);
  }
  const Times bare = Median(bareRuns);
  const Times show = Median(showRuns);
  PrintRow("start to background on the screen", "a bare program with a filled window",
           show.startMs / bare.startMs, "<= 1.3 times");
  PrintRow("end: key to process gone", "the same bare program", show.endMs / bare.endMs, "<= 1.3 times");
}

}  // namespace bench
