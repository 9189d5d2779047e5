// Draws a plan's steps onto a picture box.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

#include "base/bitmap.h"
#include "forms/picture_boxes.h"
#include "os/clock.h"
#include "os/event_loop.h"
#include "saver/transitions/plans.h"
#include "settings/extra_values.h"

namespace saver {

using settings::ParseTransitionTime;

// The first moment of the grid of sixty frames a second that lies after `elapsedMs`, counted from its start.
std::int64_t NextFrameMs(std::int64_t elapsedMs);

// A plan on its way onto one box, from `source` (not null), where every pixel goes to its own place in the
// box; rectangles are cut to both.
struct EffectOnBox {
  TransitionPlan plan;
  forms::PictureBox* box = nullptr;
  base::SharedBitmap source;
};

// Both ways of running let events run in between, a key that ends the show among them, but also timers: the
// caller guards against a second change while one is under way. Once `isOver` says so, no control is touched
// any more.
class TransitionRunner {
 public:
  TransitionRunner(const os::Clock& clock, os::EventLoop& loop, std::function<bool()> isOver);

  // Runs the effects of all boxes beside each other; one of which nothing can be seen takes no time. With a
  // time the steps of each are paced over it, without one they follow each other as fast as they can be
  // drawn, a step of each box in turn. False when the show ended on the way.
  bool run(std::span<const EffectOnBox> effects, std::optional<int> transitionTimeMs);

  // On one box.
  bool run(const TransitionPlan& plan, forms::PictureBox& destination, const base::SharedBitmap& source,
           std::optional<int> transitionTimeMs);

 private:
  class Canvas;

  bool runTight(std::span<Canvas> canvases);
  bool runPaced(std::span<Canvas> canvases, int transitionTimeMs);
  bool waitUntil(std::int64_t deadlineMs);
  bool hasEnded() const { return isOver_() || loop_.isQuitting(); }

  const os::Clock& clock_;
  os::EventLoop& loop_;
  std::function<bool()> isOver_;
};

}  // namespace saver
