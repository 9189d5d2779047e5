#include "saver/show_time.h"

#include <algorithm>
#include <utility>

namespace saver {

namespace {

constexpr std::int64_t kAnHourMs = std::int64_t{60} * 60 * 1000;  // the end of a wait that only an event ends

}  // namespace

ShowTime::~ShowTime() {
  for (const auto& [timer, running] : timers_) {
    if (running.inLoop) loop_.stopTimer(*running.inLoop);
  }
}

std::int64_t ShowTime::tickMs() const { return stoodStillAtMs_.value_or(clock_.tickMs() - stoodStillMs_); }

void ShowTime::standStill() {
  if (standsStill()) return;
  stoodStillAtMs_ = tickMs();
  for (auto& [timer, running] : timers_) {
    loop_.stopTimer(*std::exchange(running.inLoop, std::nullopt));
  }
}

void ShowTime::goOn() {
  if (!standsStill()) return;
  const std::int64_t now = *std::exchange(stoodStillAtMs_, std::nullopt);
  stoodStillMs_ = clock_.tickMs() - now;
  for (auto& [timer, running] : timers_) {
    running.isRest = true;
    startInLoop(timer, static_cast<int>(std::max<std::int64_t>(running.dueMs - now, 1)));
  }
}

void ShowTime::runPending() {
  loop_.runPending();
  hold();
}

void ShowTime::waitUntil(std::int64_t deadlineMs) {
  if (!standsStill()) loop_.waitUntil(deadlineMs + stoodStillMs_);
  hold();
}

void ShowTime::hold() {
  while (standsStill() && !loop_.isQuitting()) loop_.waitUntil(clock_.tickMs() + kAnHourMs);
}

os::EventLoop::TimerId ShowTime::startTimer(int intervalMs, std::function<void()> tick) {
  const TimerId timer = ++lastTimer_;
  timers_[timer] = {.intervalMs = intervalMs, .tick = std::move(tick), .dueMs = tickMs() + intervalMs};
  if (!standsStill()) startInLoop(timer, intervalMs);
  return timer;
}

void ShowTime::startInLoop(TimerId timer, int intervalMs) {
  timers_.at(timer).inLoop = loop_.startTimer(intervalMs, [this, timer] { ticked(timer); });
}

void ShowTime::stopTimer(TimerId timer) {
  const auto stopped = timers_.find(timer);
  if (stopped == timers_.end()) return;
  if (stopped->second.inLoop) loop_.stopTimer(*stopped->second.inLoop);
  timers_.erase(stopped);
}

void ShowTime::ticked(TimerId timer) {
  Running& running = timers_.at(timer);
  running.dueMs = tickMs() + running.intervalMs;
  if (std::exchange(running.isRest, false)) {
    loop_.stopTimer(*running.inLoop);
    startInLoop(timer, running.intervalMs);
  }
  const std::function<void()> tick = running.tick;  // which may stop its timer
  tick();
}

}  // namespace saver
