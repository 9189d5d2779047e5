// The one queue of events of the user-interface thread: input, timers, paint.
#pragma once

#include <cstdint>
#include <exception>
#include <functional>

namespace os {

// Every handler that the loop runs may throw base::RunTimeError: the loop is the event border, it catches
// the error and hands it to the error handler, once the handler has been left.
class EventLoop {
 public:
  using TimerId = int;

  virtual ~EventLoop() = default;

  // Runs everything that is waiting now, and returns.
  virtual void runPending() = 0;

  // Sleeps until an event arrives or the clock's tickMs() reaches `deadlineMs`, and runs what has arrived.
  // Returns after the first batch of events, so the caller looks at its own condition again.
  virtual void waitUntil(std::int64_t deadlineMs) = 0;

  // Calls `tick` every `intervalMs` (1 or more) until stopped. A tick that comes while its own handler is
  // still running (the handler yields) is delivered too. Late ticks are merged into one.
  virtual TimerId startTimer(int intervalMs, std::function<void()> tick) = 0;
  virtual void stopTimer(TimerId timer) = 0;

  // Runs events until quit() is called.
  virtual void run() = 0;

  // Ends run() and makes every later wait return at once.
  virtual void quit() = 0;
  virtual bool isQuitting() const = 0;

  // Who hears of errors. Without anybody, or when that throws itself, the program is terminated.
  virtual void setErrorHandler(std::function<void(const std::exception&)> handler) = 0;

  // Runs a handler that the window system calls outside the loop, at the same event border: what it throws
  // goes to the error handler and no further, since nothing may be thrown through a window procedure.
  virtual void dispatch(const std::function<void()>& handler) = 0;
};

}  // namespace os
