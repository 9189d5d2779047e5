#include "os/mailbox_win.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>

#include "os/clock_win.h"
#include "os/event_loop_win.h"

namespace os {
namespace {

class MailboxWinTest : public testing::Test {
 protected:
  ClockWin clock;
  EventLoopWin loop{clock};
};

TEST_F(MailboxWinTest, WhatAnotherThreadPostsWakesAWaitAndRunsInTheLoop) {
  MailboxWin mailbox(loop);
  std::thread::id ran;
  std::thread other([&] { mailbox.post([&] { ran = std::this_thread::get_id(); }); });
  const std::int64_t start = clock.tickMs();
  while (ran == std::thread::id() && clock.tickMs() < start + 20'000) loop.waitUntil(start + 20'000);
  other.join();
  EXPECT_EQ(ran, std::this_thread::get_id());
  EXPECT_LT(clock.tickMs(), start + 15'000);
}

TEST_F(MailboxWinTest, EventsRunInTheirOrderAndAnErrorGoesToTheErrorHandler) {
  std::string order;
  loop.setErrorHandler([&](const std::exception& error) { order += error.what(); });
  MailboxWin mailbox(loop);
  mailbox.post([&] { order += 'a'; });
  mailbox.post([] { throw std::runtime_error("!"); });
  mailbox.post([&] { order += 'b'; });
  EXPECT_EQ(order, "");
  loop.runPending();
  EXPECT_EQ(order, "a!b");
}

TEST_F(MailboxWinTest, WhatWasPostedToAMailboxThatIsGoneNeverRuns) {
  bool ran = false;
  {
    MailboxWin mailbox(loop);
    mailbox.post([&] { ran = true; });
  }
  loop.runPending();
  EXPECT_FALSE(ran);
}

}  // namespace
}  // namespace os
