// A control that calls its handler again and again.
#pragma once

#include <functional>
#include <optional>

#include "os/event_loop.h"

namespace forms {

// Runs only while it is enabled and its interval is above 0. Setting the interval, or enabling it, starts the
// countdown anew. Disabled and without an interval when made.
class Timer {
 public:
  explicit Timer(os::EventLoop& loop, int intervalMs = 0) : loop_(loop), intervalMs_(intervalMs) {}
  ~Timer() { stop(); }
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  int interval() const { return intervalMs_; }
  bool enabled() const { return enabled_; }
  // Milliseconds; 0 and below never tick.
  void setInterval(int intervalMs);
  void setEnabled(bool enabled);

  std::function<void()> onTimer;

 private:
  void stop();
  void restart();

  os::EventLoop& loop_;
  int intervalMs_;
  bool enabled_ = false;
  std::optional<os::EventLoop::TimerId> running_;
};

}  // namespace forms
