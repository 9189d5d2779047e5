// The time of a show, which can stand still.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

#include "os/clock.h"
#include "os/event_loop.h"

namespace saver {

// Loop and clock of everything that moves in a show. While the time stands still its timers do not tick, each
// keeping what is left of its interval, and a wait does not come to its end; all other events run. The time
// of the day goes on. Whoever waits has to be let go before the show is torn down: goOn(), or the end of the
// loop.
class ShowTime final : public os::EventLoop, public os::Clock {
 public:
  // Both outlive this, and count alike.
  ShowTime(os::EventLoop& loop, const os::Clock& clock) : loop_(loop), clock_(clock) {}
  ~ShowTime() override;
  ShowTime(const ShowTime&) = delete;
  ShowTime& operator=(const ShowTime&) = delete;

  void standStill();
  void goOn();
  bool standsStill() const { return stoodStillAtMs_.has_value(); }

  os::LocalTime now() const override { return clock_.now(); }
  std::int64_t tickMs() const override;

  void runPending() override;
  void waitUntil(std::int64_t deadlineMs) override;
  TimerId startTimer(int intervalMs, std::function<void()> tick) override;
  void stopTimer(TimerId timer) override;
  void run() override { loop_.run(); }
  void quit() override { loop_.quit(); }
  bool isQuitting() const override { return loop_.isQuitting(); }
  void setErrorHandler(std::function<void(const std::exception&)> handler) override {
    loop_.setErrorHandler(std::move(handler));
  }
  void dispatch(const std::function<void()>& handler) override { loop_.dispatch(handler); }

 private:
  struct Running {
    int intervalMs;
    std::function<void()> tick;
    std::int64_t dueMs;                            // by tickMs()
    bool isRest = false;                           // what ticks next is the rest of an interval
    std::optional<TimerId> inLoop = std::nullopt;  // nothing while the time stands still
  };

  void startInLoop(TimerId timer, int intervalMs);
  void ticked(TimerId timer);
  void hold();

  os::EventLoop& loop_;
  const os::Clock& clock_;
  std::int64_t stoodStillMs_ = 0;               // in all, up to the last time that it went on
  std::optional<std::int64_t> stoodStillAtMs_;  // by tickMs()
  std::map<TimerId, Running> timers_;
  TimerId lastTimer_ = 0;
};

}  // namespace saver
