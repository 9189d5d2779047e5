// What every os::EventLoop promises; run on the fake and on the system's, so that the fake cannot lie.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/errors.h"
#include "os/clock.h"
#include "os/event_loop.h"

namespace support {

// `Place` gives loop(), clock(), post(event) for an event that arrives now, and work(ms), which lets time
// pass without letting events run.
template <typename Place>
class EventLoopContract : public testing::Test {
 protected:
  os::EventLoop& loop() { return place_.loop(); }
  std::int64_t now() { return place_.clock().tickMs(); }
  void post(std::function<void()> event) { place_.post(std::move(event)); }
  void work(int ms) { place_.work(ms); }

  void waitFor(int ms) {
    const std::int64_t end = now() + ms;
    while (now() < end && !loop().isQuitting()) loop().waitUntil(end);
  }

  // One call after `ms`.
  void after(int ms, std::function<void()> event) {
    const auto timer = std::make_shared<int>(0);
    *timer = loop().startTimer(ms, [this, timer, event = std::move(event)] {
      loop().stopTimer(*timer);
      event();
    });
  }

 private:
  Place place_;
};

TYPED_TEST_SUITE_P(EventLoopContract);

TYPED_TEST_P(EventLoopContract, RunsEverythingThatIsWaitingInItsOrder) {
  std::string order;
  for (const char letter : {'a', 'b', 'c'}) this->post([&order, letter] { order += letter; });
  EXPECT_EQ(order, "") << "nothing runs before it is let";
  this->loop().runPending();
  EXPECT_EQ(order, "abc");
}

TYPED_TEST_P(EventLoopContract, AWaitWithoutEventsLastsUntilItsDeadline) {
  const std::int64_t deadline = this->now() + 40;
  int waits = 0;
  while (this->now() < deadline) {
    this->loop().waitUntil(deadline);
    ++waits;
  }
  EXPECT_GE(this->now(), deadline);
  EXPECT_LE(waits, 5) << "a wait, and not a busy loop";
}

TYPED_TEST_P(EventLoopContract, AWaitReturnsAfterTheFirstEvents) {
  bool ran = false;
  this->after(20, [&] { ran = true; });
  const std::int64_t start = this->now();
  while (!ran) this->loop().waitUntil(start + 10'000);
  EXPECT_LT(this->now(), start + 5000);
}

TYPED_TEST_P(EventLoopContract, AWaitWhoseDeadlineHasPassedRunsWhatIsWaiting) {
  bool ran = false;
  this->post([&] { ran = true; });
  this->loop().waitUntil(this->now() - 5);
  EXPECT_TRUE(ran);
}

TYPED_TEST_P(EventLoopContract, ATimerTicksAgainAndAgainUntilItIsStopped) {
  int ticks = 0;
  const std::int64_t start = this->now();
  const auto timer = this->loop().startTimer(20, [&] { ++ticks; });
  while (ticks < 5) this->loop().waitUntil(this->now() + 1000);
  EXPECT_GE(this->now() - start, 90);
  this->loop().stopTimer(timer);
  this->waitFor(100);
  EXPECT_EQ(ticks, 5);
}

TYPED_TEST_P(EventLoopContract, ATimerMayStopItselfInItsOwnTick) {
  int ticks = 0;
  std::vector<int> large(1000, 7);  // what the handler holds must outlive the stop
  std::optional<int> timer;
  timer = this->loop().startTimer(10, [&, large] {
    ++ticks;
    this->loop().stopTimer(*timer);
    EXPECT_EQ(large.at(999), 7);
  });
  this->waitFor(80);
  EXPECT_EQ(ticks, 1);
}

TYPED_TEST_P(EventLoopContract, StoppingATimerTwiceOrAnUnknownOneDoesNothing) {
  const auto timer = this->loop().startTimer(10, [] {});
  this->loop().stopTimer(timer);
  this->loop().stopTimer(timer);
  this->loop().stopTimer(timer + 1000);
}

TYPED_TEST_P(EventLoopContract, ATickArrivesWhileItsOwnHandlerYields) {
  int depth = 0;
  int deepest = 0;
  const auto timer = this->loop().startTimer(10, [&] {
    ++depth;
    deepest = std::max(deepest, depth);
    if (depth < 3) this->waitFor(50);
    --depth;
  });
  this->waitFor(200);
  this->loop().stopTimer(timer);
  EXPECT_GE(deepest, 3);
}

TYPED_TEST_P(EventLoopContract, LateTicksAreMergedIntoOne) {
  int ticks = 0;
  const auto timer = this->loop().startTimer(200, [&] { ++ticks; });
  this->work(1050);
  this->loop().runPending();
  EXPECT_EQ(ticks, 1);
  this->loop().stopTimer(timer);
}

TYPED_TEST_P(EventLoopContract, TheQueueComesToAnEndThoughATimerIsAlwaysDue) {
  int ticks = 0;
  const auto timer = this->loop().startTimer(10, [&] {
    ++ticks;
    this->work(30);
  });
  this->work(30);
  this->loop().runPending();
  EXPECT_GE(ticks, 1);
  this->loop().stopTimer(timer);
}

TYPED_TEST_P(EventLoopContract, RunLastsUntilQuit) {
  int ticks = 0;
  this->loop().startTimer(10, [&] {
    if (++ticks == 3) this->loop().quit();
  });
  this->loop().run();
  EXPECT_EQ(ticks, 3);
  EXPECT_TRUE(this->loop().isQuitting());
}

TYPED_TEST_P(EventLoopContract, AfterQuitEveryWaitReturnsAtOnceAndNothingRuns) {
  this->loop().quit();
  bool ran = false;
  this->post([&] { ran = true; });
  const std::int64_t start = this->now();
  this->loop().waitUntil(start + 10'000);
  this->loop().runPending();
  this->loop().run();
  EXPECT_LT(this->now(), start + 5000);
  EXPECT_FALSE(ran);
}

TYPED_TEST_P(EventLoopContract, QuitInAnInnerWaitEndsTheOuterOneToo) {
  const std::int64_t start = this->now();
  this->after(10, [&] {
    this->after(10, [&] { this->loop().quit(); });
    this->loop().waitUntil(this->now() + 10'000);
    this->loop().waitUntil(this->now() + 10'000);
  });
  this->loop().run();
  EXPECT_LT(this->now(), start + 5000);
}

TYPED_TEST_P(EventLoopContract, AnErrorInATickGoesToTheErrorHandlerAndTheTimerGoesOn) {
  std::vector<std::string> errors;
  this->loop().setErrorHandler([&](const std::exception& error) { errors.emplace_back(error.what()); });
  int ticks = 0;
  const auto timer = this->loop().startTimer(10, [&] {
    if (++ticks == 1) throw base::Overflow();
    if (ticks == 2) throw std::runtime_error("of another kind");
  });
  while (ticks < 3) this->loop().waitUntil(this->now() + 1000);
  this->loop().stopTimer(timer);
  EXPECT_EQ(errors, (std::vector<std::string>{"overflow", "of another kind"}));
}

TYPED_TEST_P(EventLoopContract, AnErrorInAnInnerTickLeavesTheOuterHandlerAlone) {
  int errors = 0;
  bool outerFinished = false;
  this->loop().setErrorHandler([&](const std::exception&) { ++errors; });
  this->after(10, [&] {
    this->after(10, [] { throw base::TypeMismatch(); });
    this->waitFor(50);
    outerFinished = true;
  });
  this->waitFor(150);
  EXPECT_EQ(errors, 1);
  EXPECT_TRUE(outerFinished);
}

REGISTER_TYPED_TEST_SUITE_P(
    EventLoopContract, RunsEverythingThatIsWaitingInItsOrder, AWaitWithoutEventsLastsUntilItsDeadline,
    AWaitReturnsAfterTheFirstEvents, AWaitWhoseDeadlineHasPassedRunsWhatIsWaiting,
    ATimerTicksAgainAndAgainUntilItIsStopped, ATimerMayStopItselfInItsOwnTick,
    StoppingATimerTwiceOrAnUnknownOneDoesNothing, ATickArrivesWhileItsOwnHandlerYields,
    LateTicksAreMergedIntoOne, TheQueueComesToAnEndThoughATimerIsAlwaysDue, RunLastsUntilQuit,
    AfterQuitEveryWaitReturnsAtOnceAndNothingRuns, QuitInAnInnerWaitEndsTheOuterOneToo,
    AnErrorInATickGoesToTheErrorHandlerAndTheTimerGoesOn, AnErrorInAnInnerTickLeavesTheOuterHandlerAlone);

}  // namespace support
