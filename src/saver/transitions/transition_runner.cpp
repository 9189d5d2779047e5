#include "saver/transitions/transition_runner.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/region.h"

namespace saver {

namespace {

constexpr std::int64_t kEventCheckMs = 15;  // in a tight run
constexpr int kFramesPerSecond = 60;

// The pixels that a box and a picture have in common.
base::PixelRect Common(const forms::PictureBox& box, const base::Bitmap& source) {
  return base::PixelRect::ofSize(source.size()).intersected(base::PixelRect::ofSize(box.pixelRect().size()));
}

// An effect of which nobody would see a step.
bool PaintsNothing(const TransitionPlan& plan, const base::PixelRect& bounds) {
  const auto isUnseen = [&](int step) {
    return std::ranges::all_of(plan.rectsOfStep(step), [&](const base::PixelRect& rect) {
      return rect.intersected(bounds).isEmpty();
    });
  };
  if (plan.stepCount == 0) return true;
  if (plan.growth == Growth::Covering) return isUnseen(plan.stepCount - 1);
  for (int step = 0; step < plan.stepCount; ++step) {
    if (!isUnseen(step)) return false;
  }
  return true;
}

}  // namespace

// One picture on its way onto a box.
class TransitionRunner::Canvas {
 public:
  explicit Canvas(const EffectOnBox& effect)
      : plan_(effect.plan),
        box_(*effect.box),
        source_(effect.source),
        bounds_(Common(*effect.box, *effect.source)) {}

  int stepCount() const { return plan_.stepCount; }

  // The step as it stands, every rectangle whole; nothing behind the last.
  void drawWhole(int step) {
    if (step >= plan_.stepCount) return;
    addWhole(step);
    paint();
  }

  // Brings the box from the steps before `shown_` to the first `due` steps, painting only what is new.
  void advanceTo(int due) {
    if (due <= shown_) return;
    if (plan_.growth == Growth::Accumulating) {
      while (shown_ < due) addWhole(shown_++);
    } else {
      addNew(plan_.rectsOfStep(due - 1));
      shown_ = due;
    }
    paint();
  }

 private:
  void addWhole(int step) {
    for (const base::PixelRect& rect : plan_.rectsOfStep(step)) add(rect);
  }

  // What each rectangle has more than the one that it covers.
  void addNew(std::vector<base::PixelRect> rects) {
    covered_.resize(rects.size());
    for (std::size_t j = 0; j < rects.size(); ++j) {
      for (const base::PixelRect& part : base::Difference(rects[j], covered_[j])) add(part);
    }
    covered_ = std::move(rects);
  }

  void add(const base::PixelRect& rect) {
    const base::PixelRect part = rect.intersected(bounds_);
    if (!part.isEmpty()) parts_.push_back(part);
  }

  // All parts of a frame come to the screen together.
  void paint() {
    if (!parts_.empty()) box_.paintParts(source_, parts_);
    parts_.clear();
  }

  const TransitionPlan& plan_;
  forms::PictureBox& box_;
  base::SharedBitmap source_;
  base::PixelRect bounds_;
  std::vector<base::PixelRect> parts_;    // to paint next
  int shown_ = 0;                         // steps shown so far
  std::vector<base::PixelRect> covered_;  // rectangles of the last of them
};

std::int64_t NextFrameMs(std::int64_t elapsedMs) {
  const std::int64_t frame = elapsedMs * kFramesPerSecond / 1000 + 1;
  return (frame * 1000 + kFramesPerSecond - 1) / kFramesPerSecond;
}

TransitionRunner::TransitionRunner(const os::Clock& clock, os::EventLoop& loop, std::function<bool()> isOver)
    : clock_(clock), loop_(loop), isOver_(std::move(isOver)) {}

bool TransitionRunner::run(std::span<const EffectOnBox> effects, std::optional<int> transitionTimeMs) {
  if (hasEnded()) return false;
  std::vector<Canvas> canvases;
  for (const EffectOnBox& effect : effects) {
    if (!PaintsNothing(effect.plan, Common(*effect.box, *effect.source))) canvases.emplace_back(effect);
  }
  if (canvases.empty()) return true;
  return transitionTimeMs ? runPaced(canvases, *transitionTimeMs) : runTight(canvases);
}

bool TransitionRunner::run(const TransitionPlan& plan, forms::PictureBox& destination,
                           const base::SharedBitmap& source, std::optional<int> transitionTimeMs) {
  const EffectOnBox effect{plan, &destination, source};
  return run(std::span(&effect, 1), transitionTimeMs);
}

bool TransitionRunner::runTight(std::span<Canvas> canvases) {
  int stepCount = 0;
  for (const Canvas& canvas : canvases) stepCount = std::max(stepCount, canvas.stepCount());
  std::int64_t nextCheck = clock_.tickMs() + kEventCheckMs;
  for (int step = 0; step < stepCount; ++step) {
    for (Canvas& canvas : canvases) canvas.drawWhole(step);
    if (clock_.tickMs() < nextCheck) continue;
    loop_.runPending();
    if (hasEnded()) return false;
    nextCheck = clock_.tickMs() + kEventCheckMs;
  }
  return true;
}

// Every step has an equal share of the time, so the last one too is seen for its share before the effect
// ends.
bool TransitionRunner::runPaced(std::span<Canvas> canvases, int transitionTimeMs) {
  const std::int64_t start = clock_.tickMs();
  for (;;) {
    const std::int64_t elapsed = clock_.tickMs() - start;
    if (elapsed >= transitionTimeMs) break;
    for (Canvas& canvas : canvases) {
      const int steps = canvas.stepCount();
      canvas.advanceTo(
          static_cast<int>(std::min<std::int64_t>(steps, elapsed * steps / transitionTimeMs + 1)));
    }
    const std::int64_t next = NextFrameMs(clock_.tickMs() - start);
    if (!waitUntil(start + std::min<std::int64_t>(next, transitionTimeMs))) return false;
  }
  for (Canvas& canvas : canvases) canvas.advanceTo(canvas.stepCount());
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
