#include "saver/transitions/effects.h"

#include <gtest/gtest.h>

#include <set>

#include "support/fake_event_loop.h"

namespace saver {
namespace {

// A clock on which time passes by being looked at, as it does on a machine.
class PassingClock : public support::FakeClock {
 public:
  std::int64_t tickMs() const override { return FakeClock::tickMs() + looks_++ / 10; }

 private:
  mutable std::int64_t looks_ = 0;
};

class ChooseEffectTest : public testing::Test {
 protected:
  std::optional<int> choose(const EffectFlags& flags) {
    return ChooseEffect(flags, random, clock, loop, [this] { return over; });
  }

  base::Random random;
  PassingClock clock;
  support::FakeEventLoop loop{clock};
  bool over = false;
};

TEST_F(ChooseEffectTest, WithNoFlagSetIsAlwaysThePlainShow) {
  for (int change = 0; change < 100; ++change) EXPECT_EQ(choose({}), kPlainShow);
}

TEST_F(ChooseEffectTest, WithTheFadeAloneIsAlwaysTheFade) {
  EffectFlags flags{};
  flags[8] = 1;
  for (int change = 0; change < 100; ++change) EXPECT_EQ(choose(flags), 8);
}

TEST_F(ChooseEffectTest, WithAllFlagsReachesEveryEffectAboutEquallyOften) {
  EffectFlags flags;
  flags.fill(1);
  std::array<int, kEffectCount> chosen{};
  for (int change = 0; change < 9000; ++change) ++chosen.at(static_cast<std::size_t>(*choose(flags)));
  for (const int times : chosen) {
    EXPECT_GT(times, 800);
    EXPECT_LT(times, 1200);
  }
}

TEST_F(ChooseEffectTest, NeverTakesAnEnabledFlagOtherThanOne) {
  const EffectFlags flags{2, 0.5, -1, 1, 7, 0, 1.5, 1, 3};
  EXPECT_EQ(CountEnabledEffects(flags), 8);
  std::set<int> chosen;
  for (int change = 0; change < 1000; ++change) chosen.insert(*choose(flags));
  EXPECT_EQ(chosen, (std::set<int>{3, 7}));
}

TEST_F(ChooseEffectTest, WithAFlagOfTwoAloneNeverChoosesButLetsTheUserEndTheShow) {
  EffectFlags flags{};
  flags[3] = 2;
  EXPECT_EQ(CountEnabledEffects(flags), 1);
  loop.postAfter(60'000, [this] { over = true; });
  EXPECT_EQ(choose(flags), std::nullopt);
  EXPECT_GE(clock.tickMs(), 61'000);
}

TEST_F(ChooseEffectTest, RunsNoEventsBeforeItHasTriedForAHundredMilliseconds) {
  EffectFlags flags{};
  flags[3] = 2;
  const std::int64_t start = clock.tickMs();
  std::int64_t first = 0;
  loop.post([&] {
    first = clock.tickMs() - start;
    over = true;
  });
  EXPECT_EQ(choose(flags), std::nullopt);
  EXPECT_GE(first, 100);
  EXPECT_LE(first, 120);
}

TEST_F(ChooseEffectTest, LetsTheUserEndTheShowOnAClockThatStandsStill) {
  support::FakeClock still;
  support::FakeEventLoop stillLoop(still);
  EffectFlags flags{};
  flags[0] = 2;
  stillLoop.postAfter(500, [&] { over = true; });
  EXPECT_EQ(ChooseEffect(flags, random, still, stillLoop, [this] { return over; }), std::nullopt);
}

TEST_F(ChooseEffectTest, GivesUpWhenTheEventLoopQuits) {
  EffectFlags flags{};
  flags[0] = 2;
  loop.postAfter(500, [&] { loop.quit(); });
  EXPECT_EQ(choose(flags), std::nullopt);
}

TEST_F(ChooseEffectTest, ReseedsFromTheClockBeforeEachDraw) {
  EffectFlags flags;
  flags.fill(1);
  base::Random expected = random;
  expected.reseed(os::SecondsSinceMidnight(clock.now()));
  EXPECT_EQ(choose(flags), static_cast<int>(9.0 * expected.next()));
}

TEST(DrawEffect, DrawsOneNumberAtATime) {
  base::Random random;  // its first numbers: 0.71, 0.53, 0.58, 0.29
  EffectFlags flags{};
  flags[5] = 1;
  EXPECT_EQ(DrawEffect(flags, random), std::nullopt);
  EXPECT_EQ(DrawEffect(flags, random), std::nullopt);
  EXPECT_EQ(DrawEffect(flags, random), 5);
  EXPECT_EQ(DrawEffect(flags, random), std::nullopt);
}

}  // namespace
}  // namespace saver
