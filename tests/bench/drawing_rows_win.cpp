// What the show draws on the screen, beside one copy of the same size.
#include <windows.h>

#include <memory>
#include <string>
#include <utility>

#include "bench/bench_stage_win.h"
#include "bench/bench_table.h"
#include "bench/rows.h"
#include "bench/screen.h"
#include "bench/whole_copy_win.h"
#include "pictures/picture.h"
#include "saver/transitions/effects.h"
#include "saver/transitions/transition_runner.h"
#include "support/fake_clock.h"
#include "support/fake_event_loop.h"

namespace bench {

namespace {

constexpr int kEffectMs = 1000;

// A window that counts the pixels that are put on the screen.
class CountingWindow : public saver::StageWindow {
 public:
  explicit CountingWindow(saver::StageWindow& window) : window_(window) {}

  void cover(base::PixelRect area) override { window_.cover(area); }
  void activate() override { window_.activate(); }
  std::intptr_t handle() const override { return window_.handle(); }
  void close() override { window_.close(); }
  base::BitmapView backBuffer() override { return window_.backBuffer(); }
  void runParts(int count, const std::function<void(int part)>& run) override {
    window_.runParts(count, run);
  }
  void present(std::span<const base::PixelRect> areas) override {
    for (const base::PixelRect& area : areas) pixels += area.area();
    window_.present(areas);
  }

  long long pixels = 0;

 private:
  saver::StageWindow& window_;
};

// One effect from a first to a second picture that fill the screen. The clock is turned by the waits between
// the frames, so that what is measured is the work of the frames alone.
class EffectRun {
 public:
  explicit EffectRun(int number) : number_(number) {
    stage_.form.setHost(&counted_);
    counted_.show(stage_.form, stage_.background, stage_.picture, {});
    stage_.placePicture(base::PixelRect::ofSize(kScreen));
    stage_.picture.setVisible(true);
    prepare();
  }

  // The old picture stands on the screen.
  void prepare() {
    stage_.picture.setPicture(first_);
    counted_.flush();
    window_.pixels = 0;
  }

  void run() {
    base::Random random;
    const saver::TransitionPlan plan = PlanFor(number_, stage_.picture, random);
    saver::TransitionRunner(clock_, loop_, [] {
      return false;
    }).run(plan, stage_.picture, second_->drawnAt(kScreen), kEffectMs);
    stage_.picture.setPicture(second_);
    counted_.flush();
  }

  const saver::StageWindow& window() const { return stage_.window; }

  double copiedTimes() const {
    return static_cast<double>(window_.pixels) / static_cast<double>(base::PixelRect::ofSize(kScreen).area());
  }

 private:
  int number_;
  BenchStage stage_{kScreen};
  CountingWindow window_{stage_.window};
  saver::Stage counted_{window_, stage_.text, 15};
  pictures::SharedPicture first_ = pictures::MakePicture(std::make_shared<base::Bitmap>(PhotoLike(kScreen)));
  pictures::SharedPicture second_ =
      pictures::MakePicture(std::make_shared<base::Bitmap>(kScreen, 0xFF336699));
  support::FakeClock clock_;
  support::FakeEventLoop loop_{clock_};
};

void BenchEffect(int number) {
  EffectRun effect(number);
  const WholeCopy copy(PhotoLike(kScreen), effect.window());
  const std::string name = std::string("one paced ") + saver::EffectNumbered(number).name;
  effect.run();
  PrintRow(name + ": pixels to the screen", "the picture's pixels", effect.copiedTimes(), "<= 1.05 times");
  PrintRow(name + ": processor time", "one BitBlt of the whole picture",
           TimeRatio([&] { effect.run(); }, [&] { copy.run(); }, [&] { effect.prepare(); }), "<= 4 times");
}

void BenchFloating() {
  constexpr base::PixelSize kPicture{1440, 1080};
  const base::Bitmap picture = PhotoLike(kPicture);
  BenchStage stage(kScreen);
  stage.placePicture({100, 0, kPicture.width, kPicture.height});
  stage.picture.setVisible(true);
  stage.picture.setPicture(pictures::MakePicture(std::make_shared<base::Bitmap>(picture)));
  stage.stage.flush();
  const WholeCopy copy(picture, stage.window);
  int step = 0;
  const auto move = [&] {
    ++step;
    stage.placePicture({100 + step * 3, 0, kPicture.width, kPicture.height});
    stage.stage.flush();
  };
  PrintRow("one move of a floating 1440 x 1080 picture", "one BitBlt of its size",
           TimeRatio(
               move, [&] { copy.run(); }, [] {}, 31),
           "<= 2.5 times");
}

}  // namespace

void BenchDrawing() {
  for (const int number : {2, 5, 6, 7}) BenchEffect(number);
  BenchFloating();
}

}  // namespace bench
