// What the show costs between two changes, when nothing moves: centred picture, no clock, no scrolling.
#include <windows.h>

#include <string>
#include <vector>

#include "bench/bare_window.h"
#include "bench/bench_table.h"
#include "bench/processor_time_win.h"
#include "bench/rows.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/clock_win.h"
#include "os/event_loop_win.h"
#include "support/bmp_builder.h"
#include "support/real_show_win.h"

namespace bench {

namespace {

constexpr int kIdleMs = 10'000;
constexpr double kReadingErrorMs = 2 * kProcessorStepMs;  // of two programs

// Processor time of a program while it idles behind its window.
double IdleMs(const std::wstring& program, const std::wstring& arguments, base::Pixel sign) {
  e2e::RunningProgram process(program, arguments);
  e2e::MiddleComesToBe(sign);
  // Out of the way of what the program has begun.
  const ULONGLONG settled = GetTickCount64() + 1000;
  e2e::WaitFor([&] { return GetTickCount64() >= settled; });
  const double spent = ProcessorMsWithin(process.process(), kIdleMs);
  process.endsByKey();
  return spent;
}

// Events that a show fetches from its queue over one whole period of its pictures, on one screen and further
// ones.
int WakeUps(const std::vector<base::PixelRect>& further) {
  constexpr int kPeriodSeconds = 5;
  const os::ClockWin clock;
  os::EventLoopWin loop(clock);
  support::RealShow show(clock, loop, {640, 480});
  const base::Bitmap picture({64, 48}, 0xFF00C000);
  for (const char* name : {"a.bmp", "b.bmp", "c.bmp"})
    show.addPicture(name, support::TrueColorBmp(picture, support::RowOrder::bottomUp), "");
  show.set("image/timeInterval", std::to_string(kPeriodSeconds));
  show.set("extras/otherScreens", "same");
  show.addFurtherScreens(further);
  show.start();
  const auto waitForIndex = [&](int index) {
    while (show.form().currentImageIndex() != index) loop.waitUntil(clock.tickMs() + 10'000);
  };
  waitForIndex(1);  // the first picture is on the screen, and the next one is due
  loop.runPending();
  int events = 0;
  loop.addMessageFilter([&](MSG&) {
    ++events;
    return false;
  });
  loop.waitUntil(clock.tickMs() + 1000 * kPeriodSeconds + 1000);
  show.form().unload();
  return events;
}

}  // namespace

void BenchIdle() {
  const int wakeUps = WakeUps({});
  PrintRow("wake-ups from one change to the next while nothing moves", "the one for the next change", wakeUps,
           "<= 1 time");
  PrintRow("those of a show on three screens", "of one on one screen",
           static_cast<double>(WakeUps({{640, 0, 640, 480}, {0, 480, 640, 480}})) / wakeUps, "<= 1 time");
  wchar_t self[MAX_PATH];
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  const double bare = IdleMs(self, L"--bare", 0xFF800000U);
  e2e::ProgramFolder folder;
  folder.addPicture({64, 48}, base::Rgb(0, 192, 0));
  folder.set("image/timeInterval", "60");
  folder.writeSettings();
  const double show = IdleMs(folder.program(), L"/S", 0xFF00C000U);
  PrintRow("processor time of ten idle seconds beyond a bare window's", "the error of the readings",
           (show - bare) / kReadingErrorMs, "<= 1 time");
}

}  // namespace bench
