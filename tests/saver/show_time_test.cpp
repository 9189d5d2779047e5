#include "saver/show_time.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "support/fake_clock.h"
#include "support/fake_event_loop.h"

namespace saver {
namespace {

class ShowTimeTest : public testing::Test {
 protected:
  // Ticks that say when they came, by the machine's clock.
  os::EventLoop::TimerId startTimer(int intervalMs) {
    return time.startTimer(intervalMs, [this] { ticks.push_back(clock.tickMs()); });
  }
  void turnAt(std::int64_t ms, bool standsStill) {
    loop.postAfter(ms, [this, standsStill] { standsStill ? time.standStill() : time.goOn(); });
  }

  support::FakeClock clock;
  support::FakeEventLoop loop{clock};
  ShowTime time{loop, clock};
  std::int64_t start = clock.tickMs();
  std::vector<std::int64_t> ticks;
};

using Moments = std::vector<std::int64_t>;

TEST_F(ShowTimeTest, ATimerKeepsWhatIsLeftOfItsIntervalAndThenTicksAsBefore) {
  startTimer(1000);
  turnAt(1300, true);
  turnAt(9'000'000, false);
  loop.runFor(9'003'000);
  EXPECT_EQ(ticks, (Moments{start + 1000, start + 9'000'700, start + 9'001'700, start + 9'002'700}));
}

TEST_F(ShowTimeTest, WhatIsLeftStaysLeftHoweverOftenTheTimeStandsStill) {
  startTimer(1000);
  for (int i = 0; i < 4; ++i) {
    turnAt(200 + 5200 * i, true);
    turnAt(200 + 5200 * i + 5000, false);
  }
  loop.runFor(30'000);
  ASSERT_FALSE(ticks.empty());
  EXPECT_EQ(ticks[0], start + 4 * 5000 + 1000);
}

TEST_F(ShowTimeTest, ATimerThatIsStartedMeanwhileHasItsWholeIntervalLeft) {
  turnAt(10, true);
  loop.postAfter(20, [this] { startTimer(100); });
  turnAt(500, false);
  loop.runFor(650);
  EXPECT_EQ(ticks, Moments{start + 600});
}

TEST_F(ShowTimeTest, ATimerThatIsStoppedMeanwhileStaysStopped) {
  const auto timer = startTimer(100);
  turnAt(50, true);
  loop.postAfter(60, [this, timer] { time.stopTimer(timer); });
  turnAt(500, false);
  loop.runFor(2000);
  EXPECT_TRUE(ticks.empty());
  EXPECT_EQ(loop.timersRunning(), 0);
}

TEST_F(ShowTimeTest, ItsClockLeavesOutWhatItStoodStill) {
  turnAt(100, true);
  turnAt(700, false);
  loop.runFor(400);
  EXPECT_EQ(time.tickMs(), start + 100);
  const os::LocalTime before = time.now();
  loop.runFor(600);
  EXPECT_EQ(time.tickMs(), start + 400);
  EXPECT_NE(time.now(), before) << "the time of the day goes on";
}

TEST_F(ShowTimeTest, AWaitComesToItsEndOnlyWhenTheTimeHasGoneOnAndOtherEventsRun) {
  int events = 0;
  turnAt(100, true);
  loop.postAfter(200, [&] { ++events; });
  turnAt(5000, false);
  const std::int64_t deadline = time.tickMs() + 300;
  time.waitUntil(deadline);
  EXPECT_EQ(clock.tickMs(), start + 5000);
  EXPECT_EQ(events, 1);
  while (time.tickMs() < deadline) time.waitUntil(deadline);
  EXPECT_EQ(clock.tickMs(), start + 5200);
}

TEST_F(ShowTimeTest, LettingEventsRunDoesNotComeBackBeforeTheTimeGoesOn) {
  turnAt(1, true);
  turnAt(4000, false);
  time.runPending();
  EXPECT_EQ(clock.tickMs(), start + 4000);
}

TEST_F(ShowTimeTest, TheEndOfTheLoopEndsEveryWait) {
  turnAt(1, true);
  loop.postAfter(50, [this] { time.quit(); });
  time.waitUntil(time.tickMs() + 10'000);
  EXPECT_EQ(clock.tickMs(), start + 50);
}

TEST_F(ShowTimeTest, ATickMayStopItsTimerOrStandStill) {
  os::EventLoop::TimerId timer = 0;
  timer = time.startTimer(100, [&] {
    ticks.push_back(clock.tickMs());
    if (ticks.size() == 1) time.standStill();
    if (ticks.size() == 2) time.stopTimer(timer);
  });
  turnAt(1000, false);
  loop.runFor(3000);
  EXPECT_EQ(ticks, (Moments{start + 100, start + 1100}));
}

TEST_F(ShowTimeTest, LeavesNoTimerBehind) {
  {
    ShowTime other(loop, clock);
    other.startTimer(100, [] {});
    other.startTimer(200, [] {});
    other.standStill();
    other.startTimer(300, [] {});
  }
  {
    ShowTime other(loop, clock);
    other.startTimer(100, [] {});
  }
  EXPECT_EQ(loop.timersRunning(), 0);
}

// By its own clock a timer that was stopped by nobody ticks as if the time had never stood still.
TEST(ShowTimeRandom, InItsOwnTimeEveryTimerTicksEvenly) {
  constexpr int kTimes = 6;  // that the time stands still
  for (unsigned seed = 0; seed < 2000; ++seed) {
    std::mt19937 random(seed);
    const auto below = [&](unsigned bound) { return static_cast<int>(random() % bound); };
    support::FakeClock clock;
    support::FakeEventLoop loop(clock);
    ShowTime time(loop, clock);
    std::int64_t moment = 0;
    std::int64_t standing = 0;
    for (int i = 0; i < kTimes; ++i) {
      moment += 1 + below(900);
      loop.postAfter(moment, [&] { time.standStill(); });
      const int length = 1 + below(5000);
      moment += length;
      standing += length;
      loop.postAfter(moment, [&] { time.goOn(); });
    }
    const int interval = 10 + below(700);
    const std::int64_t start = time.tickMs();
    std::vector<std::int64_t> ticks;
    time.startTimer(interval, [&] { ticks.push_back(time.tickMs() - start); });
    loop.runFor(moment + 2000);
    ASSERT_NEAR(static_cast<double>(ticks.size()), static_cast<double>(moment + 2000 - standing) / interval,
                1.1)
        << seed;
    for (std::size_t i = 0; i < ticks.size(); ++i) {
      // One whose moment was the one at which the time stopped comes a millisecond after that.
      ASSERT_NEAR(static_cast<double>(ticks[i]), static_cast<double>((i + 1)) * interval, kTimes) << seed;
    }
  }
}

}  // namespace
}  // namespace saver
