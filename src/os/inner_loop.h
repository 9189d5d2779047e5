// An event loop inside another one.
#pragma once

#include <functional>
#include <memory>

#include "os/event_loop.h"

namespace os {

// The events are those of the outer loop, which outlives this; what they run on behalf of this loop has its
// own event border, and its end leaves the outer one running. When the outer one ends, so does this.
// Destroyed when nothing of it is running any more.
class InnerLoop : public EventLoop {
 public:
  explicit InnerLoop(EventLoop& outer) : outer_(outer) {}
  InnerLoop(const InnerLoop&) = delete;
  InnerLoop& operator=(const InnerLoop&) = delete;

  // Handlers that have begun and not ended: more than one while a handler waits and events run. Handlers that
  // run in a wait of this loop on behalf of the outer one do not count.
  int running() const { return running_; }

  void runPending() override;
  void waitUntil(std::int64_t deadlineMs) override;
  TimerId startTimer(int intervalMs, std::function<void()> tick) override;
  void stopTimer(TimerId timer) override { outer_.stopTimer(timer); }
  void run() override;
  void quit() override { quitting_ = true; }
  bool isQuitting() const override { return quitting_ || outer_.isQuitting(); }

  // Without anybody, errors go to whoever hears of those of the outer loop.
  void setErrorHandler(std::function<void(const std::exception&)> handler) override {
    errorHandler_ = std::move(handler);
  }
  void dispatch(const std::function<void()>& handler) override;

 protected:
  // A handler has ended, or has been ended by an error.
  virtual void handled() {}

 private:
  void runHandler(const std::function<void()>& handler);

  EventLoop& outer_;
  std::function<void(const std::exception&)> errorHandler_;
  int running_ = 0;
  bool quitting_ = false;
};

}  // namespace os
