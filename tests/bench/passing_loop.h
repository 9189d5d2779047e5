// An event loop that passes everything on, for those that watch a part of it.
#pragma once

#include <functional>
#include <utility>

#include "os/event_loop.h"

namespace bench {

class PassingLoop : public os::EventLoop {
 public:
  explicit PassingLoop(os::EventLoop& loop) : loop_(loop) {}

  void runPending() override { loop_.runPending(); }
  void waitUntil(std::int64_t deadlineMs) override { loop_.waitUntil(deadlineMs); }
  TimerId startTimer(int intervalMs, std::function<void()> tick) override {
    return loop_.startTimer(intervalMs, std::move(tick));
  }
  void stopTimer(TimerId timer) override { loop_.stopTimer(timer); }
  void run() override { loop_.run(); }
  void quit() override { loop_.quit(); }
  bool isQuitting() const override { return loop_.isQuitting(); }
  void setErrorHandler(std::function<void(const std::exception&)> handler) override {
    loop_.setErrorHandler(std::move(handler));
  }
  void dispatch(const std::function<void()>& handler) override { loop_.dispatch(handler); }

 private:
  os::EventLoop& loop_;
};

}  // namespace bench
