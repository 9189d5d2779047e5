#include "os/inner_loop.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/fake_event_loop.h"

namespace os {
namespace {

struct InnerLoopTest : testing::Test {
  support::FakeClock clock;
  support::FakeEventLoop outer{clock};
  InnerLoop inner{outer};
  std::vector<std::string> heard;

  InnerLoopTest() {
    outer.setErrorHandler(
        [this](const std::exception& error) { heard.push_back(std::string("outer ") + error.what()); });
  }
  void hear() {
    inner.setErrorHandler(
        [this](const std::exception& error) { heard.push_back(std::string("inner ") + error.what()); });
  }
};

TEST_F(InnerLoopTest, ItsEndLeavesTheOuterOneRunning) {
  outer.postAfter(30, [this] { inner.quit(); });
  inner.run();
  EXPECT_TRUE(inner.isQuitting());
  EXPECT_FALSE(outer.isQuitting());
  EXPECT_EQ(clock.tickMs() >= 30, true);
}

TEST_F(InnerLoopTest, TheEndOfTheOuterOneIsItsOwn) {
  outer.postAfter(30, [this] { outer.quit(); });
  inner.run();
  EXPECT_TRUE(inner.isQuitting());
}

TEST_F(InnerLoopTest, AfterItsEndNothingTicksAndNothingWaits) {
  int ticks = 0;
  inner.startTimer(10, [&] { ++ticks; });
  outer.runFor(25);
  EXPECT_EQ(ticks, 2);
  inner.quit();
  const std::int64_t before = clock.tickMs();
  inner.waitUntil(before + 1000);
  inner.runPending();
  EXPECT_EQ(clock.tickMs(), before);
  outer.runFor(100);
  EXPECT_EQ(ticks, 2);
}

TEST_F(InnerLoopTest, ErrorsOfItsTimersAndHandlersAreHeardInside) {
  hear();
  const EventLoop::TimerId timer = inner.startTimer(10, [] { throw std::runtime_error("tick"); });
  outer.runFor(15);
  inner.stopTimer(timer);
  inner.dispatch([] { throw std::runtime_error("handler"); });
  EXPECT_EQ(heard, (std::vector<std::string>{"inner tick", "inner handler"}));
}

TEST_F(InnerLoopTest, ErrorsThatNobodyHearsInsideGoOut) {
  inner.dispatch([] { throw std::runtime_error("handler"); });
  EXPECT_EQ(heard, std::vector<std::string>{"outer handler"});
  EXPECT_EQ(inner.running(), 0);
}

TEST_F(InnerLoopTest, HandlersThatWaitAreCountedUntilTheyEnd) {
  std::vector<int> counts;
  inner.startTimer(10, [&] {
    counts.push_back(inner.running());
    if (counts.size() == 1) inner.waitUntil(clock.tickMs() + 25);
  });
  outer.postAfter(15, [&] { counts.push_back(100 + inner.running()); });
  outer.runFor(21);
  EXPECT_EQ(counts, (std::vector<int>{1, 101, 1}));
  EXPECT_EQ(inner.running(), 0);
}

}  // namespace
}  // namespace os
