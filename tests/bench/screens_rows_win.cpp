// What further screens cost: the frames of a change, and memory.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "bench/bench_stage_win.h"
#include "bench/bench_table.h"
#include "bench/private_bytes_win.h"
#include "bench/rows.h"
#include "bench/whole_copy_win.h"
#include "pictures/picture.h"
#include "saver/transitions/transition_runner.h"
#include "support/bmp_builder.h"
#include "support/fake_clock.h"
#include "support/fake_event_loop.h"
#include "support/real_show_win.h"

namespace bench {

namespace {

// Beside each other on one screen of 1920 x 1080, which all of this does as well as three.
constexpr base::PixelSize kEachScreen{960, 540};
constexpr base::PixelRect kPlaces[] = {{0, 0, 960, 540}, {960, 0, 960, 540}, {0, 540, 960, 540}};

constexpr int kRightWipe = 2;
constexpr int kEffectMs = 1000;

// Takes the time from one wait to the next, which is a frame's work.
class FrameTimes : public support::FakeEventLoop {
 public:
  explicit FrameTimes(support::FakeClock& clock) : FakeEventLoop(clock) {}

  void begin() {
    times_.clear();
    beginMs_ = NowMs();
  }
  void waitUntil(std::int64_t deadlineMs) override {
    times_.push_back(NowMs() - beginMs_);
    FakeEventLoop::waitUntil(deadlineMs);
    beginMs_ = NowMs();
  }

  int count() const { return static_cast<int>(times_.size()); }
  double longestMs() const { return *std::ranges::max_element(times_); }

 private:
  std::vector<double> times_;
  double beginMs_ = 0;
};

// One wipe on the first so many screens at the same time, from a first to a second picture that fill each.
// The clock is turned by the waits between the frames.
class Wipe {
 public:
  explicit Wipe(int screens) {
    for (int i = 0; i < screens; ++i) stages_.push_back(std::make_unique<BenchStage>(kPlaces[i]));
    for (const auto& stage : stages_) {
      stage->placePicture(base::PixelRect::ofSize(kEachScreen));
      stage->picture.setVisible(true);
    }
    prepare();
  }

  // The old pictures stand on the screens.
  void prepare() {
    for (const auto& stage : stages_) {
      stage->picture.setPicture(first_);
      stage->stage.flush();
    }
  }

  void run() {
    base::Random random;
    std::vector<saver::EffectOnBox> effects;
    for (const auto& stage : stages_) {
      effects.push_back({PlanFor(kRightWipe, stage->picture, random), &stage->picture, second_});
    }
    loop_.begin();
    saver::TransitionRunner(clock_, loop_, [] { return false; }).run(effects, kEffectMs);
  }

  const FrameTimes& frames() const { return loop_; }
  const saver::StageWindow& window(int screen) const { return stages_[screen]->window; }

 private:
  std::vector<std::unique_ptr<BenchStage>> stages_;
  pictures::SharedPicture first_ =
      pictures::MakePicture(std::make_shared<base::Bitmap>(PhotoLike(kEachScreen)));
  base::SharedBitmap second_ = std::make_shared<base::Bitmap>(kEachScreen, 0xFF336699);
  support::FakeClock clock_;
  FrameTimes loop_{clock_};
};

void BenchWipe() {
  Wipe wipe(3);
  std::vector<WholeCopy> copies;
  copies.reserve(std::size(kPlaces));
  for (int screen = 0; screen < 3; ++screen) copies.emplace_back(PhotoLike(kEachScreen), wipe.window(screen));
  const auto copyEach = [&] {
    for (const WholeCopy& copy : copies) copy.run();
  };
  const double whole = TimeRatio([&] { wipe.run(); }, copyEach, [&] { wipe.prepare(); });
  PrintRow("one paced wipe on three screens: processor time", "one BitBlt of each", whole, "<= 4 times");
  {
    Wipe one(1);
    const auto prepareBoth = [&] {
      wipe.prepare();
      one.prepare();
    };
    PrintRow("the same", "such a wipe on one of them",
             TimeRatio([&] { wipe.run(); }, [&] { one.run(); }, prepareBoth), "<= 3.2 times");
  }
  PrintRow("one frame of it", "one BitBlt of each", whole / wipe.frames().count(), "<= 0.1 times");
  std::vector<double> longest;
  std::vector<double> copied;
  for (int run = 0; run < 7; ++run) {
    wipe.prepare();
    wipe.run();
    longest.push_back(wipe.frames().longestMs());
    const double begin = NowMs();
    copyEach();
    copied.push_back(NowMs() - begin);
  }
  std::ranges::sort(longest);
  std::ranges::sort(copied);
  PrintRow("its longest frame", "one BitBlt of each", longest[3] / copied[3], "<= 2 times");
}

// The most that a show on these further screens and the primary one holds from its start over three changes,
// in bytes.
double MostBytes(const std::vector<base::PixelRect>& further) {
  const os::ClockWin clock;
  os::EventLoopWin loop(clock);
  support::RealShow show(clock, loop, kEachScreen);
  for (const char* name : {"a.bmp", "b.bmp", "c.bmp", "d.bmp", "e.bmp", "f.bmp"}) {
    show.addPicture(name, support::TrueColorBmp(PhotoLike(kEachScreen), support::RowOrder::bottomUp),
                    "Caption");
  }
  show.addFurtherScreens(further);
  show.set("extras/otherScreens", "different");
  show.set("extras/loadAhead", "1");
  show.set("extras/fit", "fill");
  show.set("extras/transitionTime", "300");
  show.set("transitions/bRightWipe", "1");
  show.set("background/backEffect", "1");
  show.set("image/timeInterval", "2");
  double most = 0;
  const double before = PrivateBytes();
  const os::EventLoop::TimerId timer =
      loop.startTimer(20, [&] { most = std::max(most, PrivateBytes() - before); });
  show.start();
  int last = -1;
  for (int changes = 0; changes < 4; loop.waitUntil(clock.tickMs() + 1000)) {
    if (show.form().currentImageIndex() == last) continue;
    last = show.form().currentImageIndex();
    ++changes;
  }
  loop.stopTimer(timer);
  show.form().unload();
  return most;
}

void BenchMemory() {
  MostBytes({});  // what the system's libraries take for good
  const double one = MostBytes({});
  const double three = MostBytes({kPlaces[1], kPlaces[2]});
  const double pixelBytes =
      static_cast<double>(base::PixelRect::ofSize(kEachScreen).area()) * sizeof(base::Pixel);
  PrintRow("memory at the most for each further screen of a show", "the pixels of that screen",
           (three - one) / 2 / pixelBytes, "<= 6 times");
  PrintRow("memory at the most of a show on one screen", "the pixels of that screen", one / pixelBytes,
           "(no bar)");
}

}  // namespace

void BenchScreens() {
  BenchWipe();
  BenchMemory();
}

}  // namespace bench
