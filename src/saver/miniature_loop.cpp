#include "saver/miniature_loop.h"

namespace saver {

namespace {

constexpr std::int64_t kShortWaitMs = 1000;
constexpr int kLooksInStep = 8;  // one change of pictures asks that often without waiting for an answer
constexpr int kStepMs = 9;       // more than a single-precision time of day can tell apart
constexpr int kMinuteMs = 60000;

}  // namespace

os::LocalTime MiniatureLoop::now() const {
  os::LocalTime time = clock_.now();
  const int ahead = ++looks_ <= kLooksInStep ? 0 : (looks_ - kLooksInStep) * kStepMs % kMinuteMs;
  if (ahead == 0) return time;
  const int ms = (time.second * 1000 + time.millisecond + ahead) % kMinuteMs;
  time.second = ms / 1000;
  time.millisecond = ms % 1000;
  return time;
}

void MiniatureLoop::runPending() {
  looks_ = 0;
  InnerLoop::runPending();
}

void MiniatureLoop::waitUntil(std::int64_t deadlineMs) {
  looks_ = 0;
  const std::int64_t rest = deadlineMs - tickMs();
  if (hurries_ && rest <= kShortWaitMs) {
    savedMs_ += rest > 0 ? rest : 0;
    return;
  }
  InnerLoop::waitUntil(deadlineMs - savedMs_);
}

}  // namespace saver
