// What the show in small costs on a tab of the settings dialog, and on a tab that hides it.
#include <windows.h>

#include "bench/bench_table.h"
#include "bench/processor_time_win.h"
#include "bench/rows.h"
#include "e2e/dialog_hands.h"
#include "e2e/keyboard.h"
#include "e2e/pointer.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"

namespace bench {

namespace {

constexpr int kSpanMs = 10'000;
constexpr int kBeginningMs = 2'000;  // in which a program opens what it shows
constexpr base::PackedColor kRed = base::Rgb(250, 10, 20);

// Photos that fade into each other, a clock, and a change every two seconds.
void SetLivelyShow(e2e::ProgramFolder& folder) {
  folder.addPicture({1600, 1200}, kRed, "a caption");
  folder.addPicture({1600, 1200}, base::Rgb(10, 20, 250), "another caption");
  folder.set("image/timeInterval", "2");
  folder.set("image/picturePercent", "99");
  folder.set("image/timeDisplay", "1");
  folder.set("extras/loadAhead", "1");
  folder.set("extras/change", "crossfade");
  folder.set("extras/transitionTime", "700");
  folder.writeSettings();
}

double SpentAfterBeginning(const e2e::RunningProgram& program) {
  ProcessorMsWithin(program.process(), kBeginningMs);
  return ProcessorMsWithin(program.process(), kSpanMs);
}

double ShowMs(const e2e::ProgramFolder& folder) {
  e2e::RunningProgram show(folder.program(), L"/S");
  show.waitForShow();
  const double spent = SpentAfterBeginning(show);
  show.endsByKey();
  return spent;
}

struct DialogMs {
  double hidden = 0;
  double seen = 0;
};

DialogMs MeasureDialog(const e2e::ProgramFolder& folder) {
  e2e::RunningProgram program(folder.program(), L"/C");
  const HWND dialog = e2e::DialogOf(program);
  e2e::WaitFor([&] { return GetForegroundWindow() == dialog; });
  e2e::MoveMouseTo(1, 1);  // a tool-tip comes and goes
  AwaitRest(program.process());
  DialogMs spent{.hidden = ProcessorMsWithin(program.process(), kSpanMs)};
  e2e::NextTab(dialog);
  e2e::WaitForChild(dialog, L"LumoraPicture", L"Preview of the show");
  spent.seen = SpentAfterBeginning(program);
  e2e::PressKey(VK_ESCAPE);
  program.waitForEnd();
  return spent;
}

}  // namespace

void BenchLiveView() {
  e2e::ProgramFolder folder(L"live");
  SetLivelyShow(folder);
  const double show = ShowMs(folder);
  const DialogMs dialog = MeasureDialog(folder);
  PrintRow("ten seconds of the dialog with the show in small", "of the show itself at 1920 x 1080",
           dialog.seen / show, "<= 0.5 times");
  PrintRow("the same", "ten seconds of one core", dialog.seen / kSpanMs, "<= 0.05 times");
  PrintRow("processor time of the same on a tab that hides it", "the error of the readings",
           dialog.hidden / kProcessorStepMs, "<= 1 time");
}

}  // namespace bench
