// An event loop on a fake clock: time passes only while somebody waits.
#pragma once

#include <deque>
#include <exception>
#include <functional>
#include <map>

#include "os/event_loop.h"
#include "support/fake_clock.h"

namespace support {

class FakeEventLoop : public os::EventLoop {
 public:
  explicit FakeEventLoop(FakeClock& clock) : clock_(clock) {}

  void runPending() override;
  void waitUntil(std::int64_t deadlineMs) override;
  TimerId startTimer(int intervalMs, std::function<void()> tick) override;
  void stopTimer(TimerId timer) override;
  void run() override;
  void quit() override { quitting_ = true; }
  bool isQuitting() const override { return quitting_; }
  void setErrorHandler(std::function<void(const std::exception&)> handler) override {
    errorHandler_ = std::move(handler);
  }
  void dispatch(const std::function<void()>& handler) override;

  // An event that arrives now, or after `delayMs`.
  void post(std::function<void()> event);
  void postAfter(std::int64_t delayMs, std::function<void()> event);

  // Lets `ms` pass, running every timer and event on its moment.
  void runFor(std::int64_t ms);

  // Called after each handler, in a wait inside another handler too.
  std::function<void()> afterEach;

  int timersRunning() const { return static_cast<int>(timers_.size()); }

  // How many milliseconds pass at each runPending(), so that loops that only poll come to their end.
  std::int64_t pollCostMs = 1;

 private:
  struct Running {
    std::int64_t due;
    int intervalMs;
    std::function<void()> tick;
  };

  bool runOneDue();
  std::int64_t nextDue() const;

  FakeClock& clock_;
  std::map<TimerId, Running> timers_;
  std::multimap<std::int64_t, std::function<void()>> events_;
  TimerId nextTimer_ = 1;
  bool quitting_ = false;
  std::function<void(const std::exception&)> errorHandler_;
};

}  // namespace support
