#include "saver/transitions/transition_runner.h"

#include <algorithm>
#include <utility>

#include "saver/transitions/rect_difference.h"

namespace saver {

namespace {

constexpr std::int64_t kEventCheckMs = 15;  // in a tight run
constexpr int kFramesPerSecond = 60;

// One picture on its way onto a box.
class Canvas {
 public:
  Canvas(const TransitionPlan& plan, forms::PictureBox& box, const base::Bitmap& source)
      : plan_(plan), box_(box), source_(source) {}

  // The step as it stands, every rectangle whole.
  void drawWhole(int step) {
    for (const base::PixelRect& rect : plan_.rectsOfStep(step)) paint(rect);
  }

  // Brings the box from the steps before `shown_` to the first `due` steps, painting only what is new.
  void advanceTo(int due) {
    if (due <= shown_) return;
    if (plan_.growth == Growth::Accumulating) {
      while (shown_ < due) drawWhole(shown_++);
      return;
    }
    std::vector<base::PixelRect> rects = plan_.rectsOfStep(due - 1);
    covered_.resize(rects.size());
    for (std::size_t j = 0; j < rects.size(); ++j) {
      for (const base::PixelRect& part : Difference(rects[j], covered_[j])) paint(part);
    }
    covered_ = std::move(rects);
    shown_ = due;
  }

 private:
  void paint(const base::PixelRect& rect) {
    const base::PixelRect part = rect.intersected(base::PixelRect::ofSize(source_.size()))
                                     .intersected(base::PixelRect::ofSize(box_.pixelRect().size()));
    if (!part.isEmpty()) box_.paintPart(source_, part);
  }

  const TransitionPlan& plan_;
  forms::PictureBox& box_;
  const base::Bitmap& source_;
  int shown_ = 0;                         // steps shown so far
  std::vector<base::PixelRect> covered_;  // rectangles of the last of them
};

// The first moment of the frame grid that lies after `elapsedMs`.
std::int64_t NextFrameMs(std::int64_t elapsedMs) {
  const std::int64_t frame = elapsedMs * kFramesPerSecond / 1000 + 1;
  return (frame * 1000 + kFramesPerSecond - 1) / kFramesPerSecond;
}

}  // namespace

TransitionRunner::TransitionRunner(const os::Clock& clock, os::EventLoop& loop, std::function<bool()> isOver)
    : clock_(clock), loop_(loop), isOver_(std::move(isOver)) {}

bool TransitionRunner::run(const TransitionPlan& plan, forms::PictureBox& destination,
                           const base::Bitmap& source, std::optional<int> transitionTimeMs) {
  if (hasEnded()) return false;
  if (transitionTimeMs) return runPaced(plan, destination, source, *transitionTimeMs);
  return runTight(plan, destination, source);
}

bool TransitionRunner::runTight(const TransitionPlan& plan, forms::PictureBox& destination,
                                const base::Bitmap& source) {
  Canvas canvas(plan, destination, source);
  std::int64_t nextCheck = clock_.tickMs() + kEventCheckMs;
  for (int step = 0; step < plan.stepCount; ++step) {
    canvas.drawWhole(step);
    if (clock_.tickMs() < nextCheck) continue;
    loop_.runPending();
    if (hasEnded()) return false;
    nextCheck = clock_.tickMs() + kEventCheckMs;
  }
  return true;
}

// Every step has an equal share of the time, so the last one too is seen for its share before the effect
// ends.
bool TransitionRunner::runPaced(const TransitionPlan& plan, forms::PictureBox& destination,
                                const base::Bitmap& source, int transitionTimeMs) {
  Canvas canvas(plan, destination, source);
  const std::int64_t start = clock_.tickMs();
  for (;;) {
    const std::int64_t elapsed = clock_.tickMs() - start;
    if (elapsed >= transitionTimeMs) break;
    canvas.advanceTo(static_cast<int>(
        std::min<std::int64_t>(plan.stepCount, elapsed * plan.stepCount / transitionTimeMs + 1)));
    const std::int64_t next = NextFrameMs(clock_.tickMs() - start);
    if (!waitUntil(start + std::min<std::int64_t>(next, transitionTimeMs))) return false;
  }
  canvas.advanceTo(plan.stepCount);
  return true;
}

// False when the show ended while events ran.
bool TransitionRunner::waitUntil(std::int64_t deadlineMs) {
  do {
    loop_.waitUntil(deadlineMs);
    if (hasEnded()) return false;
  } while (clock_.tickMs() < deadlineMs);
  return true;
}

}  // namespace saver
