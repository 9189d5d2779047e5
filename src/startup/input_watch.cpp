#include "startup/input_watch.h"

#include <cmath>
#include <utility>

#include "base/errors.h"
#include "base/number_text.h"
#include "base/rounding.h"

namespace startup {

namespace {

// A small move, of a table that was bumped, does not count.
constexpr float kToleratedMove = 3.0F;
constexpr double kStaleAfterSeconds = 2.0;

bool IsFar(float now, std::int32_t last) {
  return std::fabs(now - static_cast<float>(last)) > kToleratedMove;
}

}  // namespace

double MovesToEnd(const std::string& mouseSensitivity) {
  constexpr double kUsual = 7;
  try {
    return base::StrictDouble(mouseSensitivity);
  } catch (const base::RunTimeError&) {
    return kUsual;
  }
}

InputWatch::InputWatch(const os::SystemFacts& facts, double threshold, Actions actions)
    : guardsPassword_(facts.guardsPassword()), threshold_(threshold), actions_(std::move(actions)) {}

void InputWatch::LastPlace::record(float x, float y) {
  lastMouseX = base::ToInt32(x);
  lastMouseY = base::ToInt32(y);
  hasRecorded = true;
}

void InputWatch::filter(LastPlace& handler, const MouseMove& move) {
  const bool rests = pointer_ == move.onScreen;
  const bool far = IsFar(move.x, handler.lastMouseX) || IsFar(move.y, handler.lastMouseY);
  const bool counts = far && !rests && handler.lastMouseX > 0 && handler.lastMouseY > 0;
  // Recorded before the move is counted: counting may end in the password dialog, whose events come here too.
  handler.record(move.x, move.y);
  pointer_ = move.onScreen;
  if (counts) MouseMoved(move.secondsSinceMidnight);
}

void InputWatch::MouseMoved(float secondsSinceMidnight) {
  moveCount_ = base::ToInt16(moveCount_ + 1.0);
  if (moveCount_ == threshold_) {
    if (guardsPassword_) {
      moveCount_ = 0;
    } else {
      actions_.showCursor();
    }
    actions_.exitSaver();
    return;
  }
  if (firstMoveTime_ == 0) {
    firstMoveTime_ = base::ToInt32(secondsSinceMidnight);
  } else if (static_cast<double>(secondsSinceMidnight) - firstMoveTime_ > kStaleAfterSeconds) {
    firstMoveTime_ = 0;
    moveCount_ = 0;
  }
}

void InputWatch::forgetPointer() {
  form_ = {};
  picture_ = {};
  pointer_.reset();
}

void InputWatch::controlsMoved(const ControlAt& controlAt) {
  if (!pointer_) return;
  const std::optional<PointedControl> found = controlAt(*pointer_);
  if (!found) return;
  LastPlace& handler = found->control == WatchedControl::Form ? form_ : picture_;
  // A handler without a position has none to follow; its first event records.
  if (handler.hasRecorded) handler.record(found->x, found->y);
}

}  // namespace startup
