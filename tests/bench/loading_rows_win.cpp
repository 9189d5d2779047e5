// What loading beside the user-interface thread is good for: how soon pictures come, and that nothing waits.
#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "bench/bench_stage_win.h"
#include "bench/bench_table.h"
#include "bench/passing_loop.h"
#include "bench/rows.h"
#include "bench/screen.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/clock_win.h"
#include "os/event_loop_win.h"
#include "os/system_library_win.h"
#include "os/utf16_win.h"
#include "support/bmp_builder.h"
#include "support/channels.h"
#include "support/real_show_win.h"
#include "support/wic_encoder_win.h"

namespace bench {

namespace {

constexpr base::PixelSize kShown{1440, 1080};  // of a picture of 4 to 3
constexpr base::Pixel kSign = 0xFF00C000U;     // in the middle of every picture

struct Photograph {
  const char* name;
  base::PixelSize size;
};
constexpr Photograph kPhotographs[] = {{"12-megapixel", {4000, 3000}}, {"48-megapixel", {8000, 6000}}};

std::string Jpeg(base::PixelSize size) {
  base::Bitmap picture = PhotoLike(size);
  base::FillRect(picture.view(), {size.width / 3, size.height / 3, size.width / 3, size.height / 3}, kSign);
  return support::Encode(picture, support::EncodedAs::jpeg);
}

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

// The longest time that a change of pictures took from the end of its wait to the first frame of the new
// picture, which is when it waits again.
class FrameAfterWait : public PassingLoop {
 public:
  using PassingLoop::PassingLoop;

  void waitUntil(std::int64_t deadlineMs) override {
    note();
    isAfterWait_ = isAfterWait_ || (depth_ > 0 && static_cast<double>(deadlineMs) - NowMs() > kShortestMs);
    ++depth_;
    PassingLoop::waitUntil(deadlineMs);
    --depth_;
    returnedMs_ = NowMs();
  }

  TimerId startTimer(int intervalMs, std::function<void()> tick) override {
    return PassingLoop::startTimer(intervalMs, [this, tick = std::move(tick)] {
      tick();
      note();  // an effect without steps does not wait
    });
  }

  double longestMs = 0;

 private:
  static constexpr double kShortestMs = 200;  // longer than any wait between two frames
  static constexpr double kNoFrameMs = 0.5;   // the wait has only been taken up again, for the rest of it

  void note() {
    const double passed = NowMs() - returnedMs_;
    if (!isAfterWait_ || passed < kNoFrameMs) return;
    longestMs = std::max(longestMs, passed);
    isAfterWait_ = false;
  }

  int depth_ = 0;
  bool isAfterWait_ = false;
  double returnedMs_ = 0;
};

// With all of them each draw of an effect is a hit.
void SetPacedEffects(support::RealShow& show) {
  for (const char* effect : {"bStandard", "bLeftWipe", "bRightWipe", "bRightandLeftWipe", "bUpAndDown",
                             "bCenter", "bHorizontalBlinds", "bVerticalBlinds", "bFade"}) {
    show.set(std::string("transitions/") + effect, "1");
  }
  show.set("extras/transitionTime", "300");
}

// Median over some changes, in milliseconds.
double ToFirstFrame(const std::string& jpeg, bool loadsAhead) {
  constexpr int kChanges = 5;
  const os::ClockWin clock;
  os::EventLoopWin loop(clock);
  FrameAfterWait watch(loop);
  support::RealShow show(clock, watch, kScreen);
  for (const char* name : {"a.jpg", "b.jpg", "c.jpg"}) show.addPicture(name, jpeg, "");
  SetPacedEffects(show);
  show.set("image/timeInterval", "3");
  if (loadsAhead) show.set("extras/loadAhead", "1");
  show.start();
  std::vector<double> delays;
  int index = show.form().currentImageIndex();
  while (delays.size() <= kChanges && !show.form().isOver()) {
    watch.waitUntil(clock.tickMs() + 1000);
    if (show.form().currentImageIndex() == index) continue;
    index = show.form().currentImageIndex();
    delays.push_back(std::exchange(watch.longestMs, 0));
  }
  show.form().unload();
  delays.erase(delays.begin());  // the start
  return Median(std::move(delays));
}

void BenchFirstFrames() {
  for (const Photograph& photograph : kPhotographs) {
    const std::string jpeg = Jpeg(photograph.size);
    const double ahead = ToFirstFrame(jpeg, true);
    const double onTheSpot = ToFirstFrame(jpeg, false);
    PrintRow(std::string("end of the wait to first frame, ") + photograph.name + " JPEG, loadAhead",
             "the same without loadAhead", ahead / onTheSpot, "<= 0.2 times");
  }
}

// How much later than they should the ticks of the timers come.
class TickWatch : public PassingLoop {
 public:
  using PassingLoop::PassingLoop;

  TimerId startTimer(int intervalMs, std::function<void()> tick) override {
    double last = NowMs();
    return PassingLoop::startTimer(intervalMs, [this, intervalMs, last, tick = std::move(tick)]() mutable {
      const double now = NowMs();
      if (intervalMs <= kLongestMs) latestMs = std::max(latestMs, now - last - intervalMs);
      last = now;
      tick();
    });
  }

  // Effects wait from frame to frame.
  void waitUntil(std::int64_t deadlineMs) override {
    const bool isFrame = static_cast<double>(deadlineMs) - NowMs() <= kLongestFrameMs;
    PassingLoop::waitUntil(deadlineMs);
    if (isFrame) latestMs = std::max(latestMs, NowMs() - static_cast<double>(deadlineMs));
  }

  double latestMs = 0;

 private:
  static constexpr int kLongestMs = 200;  // those of caption and floating picture
  static constexpr int kLongestFrameMs = 20;
};

using Keys = std::vector<std::pair<const char*, const char*>>;

const Keys kFloatingAndScrolling = {
    {"image/picRandom", "rand"}, {"image/picSpeed", "5"}, {"font/scroll", "0"}};
const Keys kFadingAndGliding = {{"extras/fit", "whole"},
                                {"extras/surround", "blur"},
                                {"extras/change", "crossfade"},
                                {"extras/panZoom", "8"}};

// The latest tick or frame of some changes, in milliseconds.
double LatestTick(const std::string& picture, const std::string& ending, const Keys& keys) {
  constexpr int kChanges = 8;
  const os::ClockWin clock;
  os::EventLoopWin loop(clock);
  TickWatch watch(loop);
  support::RealShow show(clock, watch, kScreen);
  for (const char* name : {"a", "b", "c"}) show.addPicture(name + ending, picture, "A caption");
  SetPacedEffects(show);
  show.set("extras/loadAhead", "1");
  show.set("image/timeInterval", "2");
  for (const auto& [key, value] : keys) show.set(key, value);
  show.start();
  int index = show.form().currentImageIndex();
  for (int changes = 0; changes < kChanges && !show.form().isOver();) {
    watch.waitUntil(clock.tickMs() + 1000);
    if (show.form().currentImageIndex() == index) continue;
    index = show.form().currentImageIndex();
    if (++changes == 1) watch.latestMs = 0;  // the start
  }
  show.form().unload();
  return watch.latestMs;
}

void BenchTicks() {
  const std::string light = support::TrueColorBmp(PhotoLike(kShown), support::RowOrder::bottomUp);
  const std::string heavy = Jpeg(kPhotographs[1].size);
  constexpr double kLateMs = 20;
  PrintRow("latest tick of caption and floating picture, 48-megapixel pictures in turn", "20 ms",
           LatestTick(heavy, ".jpg", kFloatingAndScrolling) / kLateMs, "<= 1 time");
  PrintRow("the same with bitmaps of the size shown", "20 ms",
           LatestTick(light, ".bmp", kFloatingAndScrolling) / kLateMs, "(no bar)");
  PrintRow("latest frame of crossfade and glide, 48-megapixel pictures in turn", "20 ms",
           LatestTick(heavy, ".jpg", kFadingAndGliding) / kLateMs, "<= 1 time");
  PrintRow("the same with bitmaps of the size shown", "20 ms",
           LatestTick(light, ".bmp", kFadingAndGliding) / kLateMs, "(no bar)");
}

bool ShowsSign() {
  return support::ChannelDistance(e2e::ScreenPixel(kScreen.width / 2, kScreen.height / 2), kSign) < 12;
}

// From the start of a program to its picture on the screen, in milliseconds.
double ToPicture(const std::wstring& program, const std::wstring& arguments, bool endsByKey) {
  e2e::WaitFor([] { return !ShowsSign(); });
  const double start = NowMs();
  e2e::RunningProgram process(program, arguments);
  e2e::WaitFor(ShowsSign);
  const double shown = NowMs() - start;
  if (endsByKey) process.endsByKey();
  e2e::WaitFor([] { return !ShowsSign(); });
  return shown;
}

// The way of a file as the system below knows it, where there is one.
std::wstring NativePath(const std::string& path) {
  using Convert = char*(CDECL*)(const wchar_t* path);
  const auto convert = os::FindFunction<Convert>(L"kernel32.dll", "wine_get_unix_file_name");
  char* const native = convert ? convert(os::ToWide(path).c_str()) : nullptr;
  if (!native) return {};
  std::wstring wide = os::ToWide(native);
  HeapFree(GetProcessHeap(), 0, native);
  return wide;
}

}  // namespace

void BenchLoading() {
  BenchFirstFrames();
  BenchTicks();
}

// The viewer is a program of the system below, named in the environment; it ends by itself.
void BenchFirstPicture() {
  constexpr double kStartDelayMs = 500;
  wchar_t self[MAX_PATH];
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  wchar_t viewer[MAX_PATH] = {};
  if (GetEnvironmentVariableW(L"LUMORA_BENCH_VIEWER", viewer, MAX_PATH) == 0) return;
  for (const Photograph& photograph : kPhotographs) {
    e2e::ProgramFolder folder;
    folder.addPath(folder.writeFile("photograph.jpg", Jpeg(photograph.size)));
    folder.set("extras/loadAhead", "1");
    folder.set("image/timeInterval", "60");
    folder.writeSettings();
    const std::wstring file = NativePath(os::FromWide(folder.path()) + "\\photograph.jpg");
    std::vector<double> shows;
    std::vector<double> views;
    std::vector<double> bareViews;
    for (int i = 0; i < 5; ++i) {
      shows.push_back(ToPicture(folder.program(), L"/S", true) - kStartDelayMs);
      views.push_back(ToPicture(viewer, file, false));
      bareViews.push_back(ToPicture(self, L"--viewer " + folder.path() + L"\\photograph.jpg", true));
    }
    PrintRow(std::string("start to first picture less half a second, ") + photograph.name + " JPEG",
             "a native viewer", Median(shows) / Median(views), "<= 1 time");
    PrintRow(std::string("start to first picture less half a second, ") + photograph.name + " JPEG",
             "a bare viewer on the same platform", Median(shows) / Median(bareViews), "<= 1 time");
  }
}

}  // namespace bench
