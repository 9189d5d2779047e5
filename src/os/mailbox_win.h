// Events that any thread hands to the thread of a message loop.
#pragma once

#include <deque>
#include <functional>
#include <mutex>

#include "os/event_loop.h"
#include "os/handles_win.h"

namespace os {

// Made and destroyed on the thread whose messages it uses. What has not been run by then never is.
class MailboxWin {
 public:
  // The events run at the error border of `loop`, which outlives this.
  explicit MailboxWin(EventLoop& loop);
  ~MailboxWin();
  MailboxWin(const MailboxWin&) = delete;
  MailboxWin& operator=(const MailboxWin&) = delete;

  // Callable from every thread; the events run in their order.
  void post(std::function<void()> event);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void runNext();

  EventLoop& loop_;
  OwnedWindow window_;  // receives the messages, shows nothing
  std::mutex mutex_;
  std::deque<std::function<void()>> events_;
};

}  // namespace os
