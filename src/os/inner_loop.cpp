#include "os/inner_loop.h"

#include <limits>
#include <utility>

namespace os {

namespace {

class Counted {
 public:
  explicit Counted(int& count) : count_(count) { ++count_; }
  ~Counted() { --count_; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

 private:
  int& count_;
};

}  // namespace

void InnerLoop::runPending() {
  if (!isQuitting()) outer_.runPending();
}

void InnerLoop::waitUntil(std::int64_t deadlineMs) {
  if (!isQuitting()) outer_.waitUntil(deadlineMs);
}

EventLoop::TimerId InnerLoop::startTimer(int intervalMs, std::function<void()> tick) {
  return outer_.startTimer(intervalMs, [this, tick = std::move(tick)] {
    if (!isQuitting()) runHandler(tick);
  });
}

void InnerLoop::run() {
  while (!isQuitting()) outer_.waitUntil(std::numeric_limits<std::int64_t>::max());
}

void InnerLoop::dispatch(const std::function<void()>& handler) {
  outer_.dispatch([&] { runHandler(handler); });
}

void InnerLoop::runHandler(const std::function<void()>& handler) {
  const Counted counted(running_);
  try {
    handler();
  } catch (const std::exception& error) {
    if (!errorHandler_) throw;
    const auto errorHandler = errorHandler_;  // it may replace itself
    errorHandler(error);
  }
  handled();
}

}  // namespace os
