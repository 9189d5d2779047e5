#include "support/fake_event_loop.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace support {

void FakeEventLoop::dispatch(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const std::exception& error) {
    if (!errorHandler_) throw;
    errorHandler_(error);
  }
  if (afterEach) afterEach();
}

bool FakeEventLoop::runOneDue() {
  const std::int64_t now = clock_.tickMs();
  if (!events_.empty() && events_.begin()->first <= now) {
    const std::function<void()> event = std::move(events_.begin()->second);
    events_.erase(events_.begin());
    dispatch(event);
    return true;
  }
  auto due = timers_.end();
  for (auto it = timers_.begin(); it != timers_.end(); ++it) {
    if (it->second.due <= now && (due == timers_.end() || it->second.due < due->second.due)) due = it;
  }
  if (due == timers_.end()) return false;
  // The next tick is counted from now: late ticks are merged.
  due->second.due = now + due->second.intervalMs;
  const std::function<void()> tick = due->second.tick;
  dispatch(tick);
  return true;
}

void FakeEventLoop::runPending() {
  clock_.advance(pollCostMs);
  for (int guard = 0; guard < 1000 && !quitting_ && runOneDue(); ++guard) {
  }
}

std::int64_t FakeEventLoop::nextDue() const {
  std::int64_t next = std::numeric_limits<std::int64_t>::max();
  if (!events_.empty()) next = events_.begin()->first;
  for (const auto& [id, timer] : timers_) next = std::min(next, timer.due);
  return next;
}

void FakeEventLoop::waitUntil(std::int64_t deadlineMs) {
  if (quitting_) return;
  const std::int64_t until = std::min(deadlineMs, nextDue());
  if (until > clock_.tickMs()) clock_.advance(until - clock_.tickMs());
  for (int guard = 0; guard < 1000 && !quitting_ && runOneDue(); ++guard) {
  }
}

os::EventLoop::TimerId FakeEventLoop::startTimer(int intervalMs, std::function<void()> tick) {
  const TimerId id = nextTimer_++;
  timers_[id] = {clock_.tickMs() + intervalMs, intervalMs, std::move(tick)};
  return id;
}

void FakeEventLoop::stopTimer(TimerId timer) { timers_.erase(timer); }

void FakeEventLoop::run() {
  while (!quitting_ && nextDue() != std::numeric_limits<std::int64_t>::max()) waitUntil(nextDue());
}

void FakeEventLoop::post(std::function<void()> event) { postAfter(0, std::move(event)); }

void FakeEventLoop::postAfter(std::int64_t delayMs, std::function<void()> event) {
  events_.emplace(clock_.tickMs() + delayMs, std::move(event));
}

void FakeEventLoop::runFor(std::int64_t ms) {
  const std::int64_t end = clock_.tickMs() + ms;
  while (!quitting_ && clock_.tickMs() < end) waitUntil(end);
}

}  // namespace support
