// What crossfade and glide cost, beside one copy of the screen.
#include <windows.h>

#include <functional>
#include <memory>
#include <utility>

#include "bench/bench_stage_win.h"
#include "bench/bench_table.h"
#include "bench/processor_time_win.h"
#include "bench/rows.h"
#include "bench/screen.h"
#include "os/dib_win.h"
#include "saver/crossfade.h"
#include "saver/gliding_picture.h"

namespace bench {

namespace {

constexpr base::PixelSize kLargeScreen{3840, 2160};
constexpr int kGlideMs = 10'000;
constexpr int kPercent = 8;

base::SharedBitmap Photo(base::PixelSize size) { return std::make_shared<base::Bitmap>(PhotoLike(size)); }

// One frame after another of something that lives on a stage.
class Frames {
 public:
  explicit Frames(base::PixelSize screen)
      : stage_(screen),
        crossfade_(PhotoLike(screen), base::PixelRect::ofSize(screen)),
        glide_(screen, kPercent, kGlideMs, 0),
        gliding_(Photo(glide_.drawnSize()), glide_, {0, 0}, 0),
        copied_(screen) {
    crossfade_.setTarget(base::Bitmap(screen, 0xFF336699), base::PixelRect::ofSize(screen));
  }

  void crossfade() {
    crossfade_.setWeight(++frame_ % 256);
    show(crossfade_);
  }

  void glide() {
    gliding_.moveTo(++frame_ * 16 % kGlideMs);
    show(gliding_);
  }

  void copy() {
    const os::WindowDc dc(reinterpret_cast<HWND>(stage_.window.handle()));
    const base::PixelSize size = copied_.view().size;
    BitBlt(dc.get(), 0, 0, size.width, size.height, copied_.dc(), 0, 0, SRCCOPY);
    GdiFlush();
  }

 private:
  void show(const saver::LivePicture& live) {
    stage_.stage.showLive(&live);
    stage_.stage.flush();
    GdiFlush();
  }

  BenchStage stage_;
  saver::Crossfade crossfade_;
  saver::Glide glide_;
  saver::GlidingPicture gliding_;
  os::Dib copied_;
  int frame_ = 0;
};

// Of a second of one core, what so many frames take of all cores; of many more, since readings are coarse.
double ShareOfACore(const std::function<void()>& frame, int framesPerSecond) {
  constexpr int kManyFrames = 300;
  const double before = ProcessorMs(GetCurrentProcess());
  for (int i = 0; i < kManyFrames; ++i) frame();
  return (ProcessorMs(GetCurrentProcess()) - before) / kManyFrames * framesPerSecond / 1000;
}

}  // namespace

void BenchLooks() {
  Frames frames(kScreen);
  const auto copy = [&] { frames.copy(); };
  const auto crossfade = [&] { frames.crossfade(); };
  const auto glide = [&] { frames.glide(); };
  const auto nothing = [] {};
  PrintRow("one frame of a crossfade at 1920 x 1080", "one BitBlt of it",
           TimeRatio(crossfade, copy, nothing, 31), "<= 4 times");
  PrintRow("one frame of a glide at 1920 x 1080", "one BitBlt of it", TimeRatio(glide, copy, nothing, 31),
           "<= 6 times");
  PrintRow("sixty frames of a crossfade at 1920 x 1080", "a second of one core", ShareOfACore(crossfade, 60),
           "<= 0.5 times");
  PrintRow("sixty frames of a glide at 1920 x 1080", "a second of one core", ShareOfACore(glide, 60),
           "<= 0.5 times");
  Frames large(kLargeScreen);
  PrintRow("thirty frames of a crossfade at 3840 x 2160", "a second of one core",
           ShareOfACore([&] { large.crossfade(); }, 30), "<= 1 time");
  PrintRow("thirty frames of a glide at 3840 x 2160", "a second of one core",
           ShareOfACore([&] { large.glide(); }, 30), "<= 1 time");
}

}  // namespace bench
