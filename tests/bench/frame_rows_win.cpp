// Whether the frames of a paced effect come in time.
#include <windows.h>

#include <memory>
#include <string>

#include "bench/bench_stage_win.h"
#include "bench/bench_table.h"
#include "bench/frames_in_time.h"
#include "bench/passing_loop.h"
#include "bench/rows.h"
#include "bench/screen.h"
#include "os/clock_win.h"
#include "os/event_loop_win.h"
#include "pictures/picture.h"
#include "saver/transitions/effects.h"
#include "saver/transitions/transition_runner.h"

namespace bench {

namespace {

constexpr int kEffectMs = 2000;
constexpr int kFrames = kEffectMs * 60 / 1000;
constexpr double kFrameMs = 1000.0 / 60;

// Passes everything on, and counts the frames whose work was done before the next frame was due.
class FrameWatch : public PassingLoop {
 public:
  explicit FrameWatch(os::EventLoop& loop) : PassingLoop(loop), dueMs_(NowMs()) {}

  void waitUntil(std::int64_t deadlineMs) override {
    // A wait for the next frame begins when a frame has been drawn; an event may make it begin again.
    if (deadlineMs != deadlineMs_) {
      if (NowMs() - dueMs_ <= kFrameMs) ++inTime;
      dueMs_ = static_cast<double>(deadlineMs);  // the clocks count alike
      deadlineMs_ = deadlineMs;
    }
    PassingLoop::waitUntil(deadlineMs);
  }

  int inTime = 0;

 private:
  double dueMs_;
  std::int64_t deadlineMs_ = 0;
};

}  // namespace

double FramesInTime(int number, const std::function<std::shared_ptr<void>(os::EventLoop& loop)>& prepare) {
  BenchStage stage(kScreen);
  stage.placePicture(base::PixelRect::ofSize(kScreen));
  stage.picture.setVisible(true);
  stage.picture.setPicture(pictures::MakePicture(std::make_shared<base::Bitmap>(PhotoLike(kScreen))));
  stage.stage.flush();
  const auto next = std::make_shared<base::Bitmap>(kScreen, 0xFF336699);
  base::Random random;
  const saver::TransitionPlan plan = PlanFor(number, stage.picture, random);
  const os::ClockWin clock;
  os::EventLoopWin loop(clock);
  loop.runPending();
  const std::shared_ptr<void> beside = prepare ? prepare(loop) : nullptr;
  FrameWatch watch(loop);
  saver::TransitionRunner(clock, watch, [] { return false; }).run(plan, stage.picture, next, kEffectMs);
  return static_cast<double>(watch.inTime) / kFrames;
}

void BenchFrames() {
  for (const int number : {2, 5, 6, 7}) {
    PrintRow(std::string("frames of a paced ") + saver::EffectNumbered(number).name + " done within 16.7 ms",
             "60 frames a second at 1920 x 1080", FramesInTime(number, nullptr), ">= 0.99");
  }
}

}  // namespace bench
