#include "forms/timer.h"

namespace forms {

void Timer::setInterval(int intervalMs) {
  intervalMs_ = intervalMs;
  restart();
}

void Timer::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  restart();
}

void Timer::stop() {
  if (running_) loop_.stopTimer(*running_);
  running_.reset();
}

void Timer::restart() {
  stop();
  if (!enabled_ || intervalMs_ <= 0) return;
  running_ = loop_.startTimer(intervalMs_, [this] {
    if (onTimer) onTimer();
  });
}

}  // namespace forms
