// The little show's own thread, and its way to the dialog.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "dialog/live_show.h"
#include "os/clock.h"
#include "os/event_loop.h"
#include "os/mailbox_win.h"
#include "os/screen.h"
#include "startup/dialog_show.h"
#include "startup/seen_show.h"

namespace startup {

class DialogStageWin {
 public:
  // `loop` is the dialog's. `tryOut` shows the show full screen and returns when it has ended. All outlive
  // this.
  DialogStageWin(os::EventLoop& loop, const os::Clock& clock, const os::Screen& screen,
                 std::function<void(const std::string& settings)> tryOut);

  // Waits for the thread, which waits for nothing.
  ~DialogStageWin();
  DialogStageWin(const DialogStageWin&) = delete;
  DialogStageWin& operator=(const DialogStageWin&) = delete;

  dialog::LiveShow& show() { return show_; }

 private:
  using Order = std::function<void(LittleStage& stage)>;

  void give(Order order);
  void work();
  void doOrders(os::EventLoop& loop, LittleStage& stage);

  SeenShow seen_;
  os::MailboxWin news_;  // of the dialog's thread
  std::mutex mutex_;     // guards what follows
  std::deque<Order> orders_;
  std::function<void()> wake_;  // the thread does its orders; null until it can
  bool hasEnded_ = false;
  DialogShow show_;
  std::jthread thread_;  // from the first order on
};

}  // namespace startup
