// The message queue of the user-interface thread.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "os/clock.h"
#include "os/event_loop.h"
#include "os/handles_win.h"

namespace os {

// Timers are those of the window system: they tick in every message loop of the thread, those of message
// boxes and common dialogs included. Intervals below the system's minimum (10 ms) are lengthened to it.
class EventLoopWin : public EventLoop {
 public:
  // True when the filter has dealt with the message (IsDialogMessage, TranslateAccelerator).
  using MessageFilter = std::function<bool(MSG&)>;

  // Deadlines are those of `clock`, which must be the machine's own.
  explicit EventLoopWin(const Clock& clock);
  ~EventLoopWin() override;

  void runPending() override;
  void waitUntil(std::int64_t deadlineMs) override;
  TimerId startTimer(int intervalMs, std::function<void()> tick) override;
  void stopTimer(TimerId timer) override;
  void run() override;
  void quit() override;
  bool isQuitting() const override { return quitting_; }
  void setErrorHandler(std::function<void(const std::exception&)> handler) override;
  void dispatch(const std::function<void()>& handler) noexcept override;

  // Asks the filter about every message before it is dispatched, in the order of adding. Returns the filter's
  // number, by which it is removed, also from inside a filter.
  int addMessageFilter(MessageFilter filter);
  void removeMessageFilter(int filter);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void tick(TimerId timer);
  void deliver(MSG& message);
  bool filtered(MSG& message);
  void sleep(std::int64_t durationMs);

  const Clock& clock_;
  OwnedWindow window_;  // receives the timers' messages, shows nothing
  OwnedHandle alarm_;   // wakes a wait at its deadline; null where the system has no exact one
  std::map<TimerId, std::shared_ptr<std::function<void()>>> timers_;
  std::map<int, std::shared_ptr<MessageFilter>> filters_;
  TimerId nextTimer_ = 1;
  int nextFilter_ = 1;
  bool quitting_ = false;
  std::function<void(const std::exception&)> errorHandler_;
};

}  // namespace os
