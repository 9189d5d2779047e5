#include "saver/transitions/transition_runner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "base/region.h"
#include "support/documented_effects.h"
#include "support/fake_event_loop.h"
#include "support/transition_scene.h"

namespace saver {
namespace {

using base::Bitmap;
using base::PixelRect;
using base::PixelSize;

// Odd and even, lower than a blind, a single pixel, square, high, and 9000 twips wide or wider.
const std::vector<PixelSize> kSizes{{60, 48}, {61, 47}, {48, 60}, {1, 1},   {2, 1},    {1, 2},    {40, 40},
                                    {33, 33}, {45, 12}, {19, 17}, {20, 20}, {600, 30}, {601, 25}, {30, 610}};

class TransitionRunnerTest : public testing::Test {
 protected:
  // An event loop that looks at the box whenever the run is about to wait.
  class WatchingLoop : public support::FakeEventLoop {
   public:
    using FakeEventLoop::FakeEventLoop;
    void waitUntil(std::int64_t deadlineMs) override {
      deadlines.push_back(deadlineMs);
      if (onWait) onWait();
      FakeEventLoop::waitUntil(deadlineMs);
    }
    std::function<void()> onWait;
    std::vector<std::int64_t> deadlines;
  };

  bool run(support::TransitionScene& scene, const TransitionPlan& plan, std::optional<int> timeMs) {
    return TransitionRunner(clock, loop, [this] { return over; }).run(plan, scene.box, scene.source, timeMs);
  }

  // The documented loop on a bitmap of its own: what each step shows, and every rectangle that is not empty.
  static std::vector<PixelRect> documented(int effect, const support::TransitionScene& scene,
                                           const std::function<void(int step, const Bitmap&)>& seeStep) {
    const PixelSize size = scene.source->size();
    Bitmap shown(size);
    std::vector<PixelRect> painted;
    int step = 0;
    base::Random random;
    support::RunDocumentedLoop(
        effect,
        {static_cast<float>(size.width), static_cast<float>(size.height),
         static_cast<float>(size.width * 15)},
        random,
        {.paint =
             [&](double x, double y, double w, double h) {
               const PixelRect rect{static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y)),
                                    static_cast<int>(w), static_cast<int>(h)};
               const PixelRect part = rect.intersected(PixelRect::ofSize(size));
               if (part.isEmpty()) return;
               painted.push_back(part);
               base::CopyRect(shown.view(), {part.left, part.top}, *scene.source, part);
             },
         .endOfStep = [&] { seeStep(step++, shown); }});
    return painted;
  }

  support::FakeClock clock;
  WatchingLoop loop{clock};
  bool over = false;
};

TEST_F(TransitionRunnerTest, WithoutATimePaintsExactlyTheRectanglesOfTheDocumentedLoop) {
  for (const PixelSize size : kSizes) {
    for (int effect = 1; effect < kEffectCount; ++effect) {
      support::TransitionScene scene(size);
      EXPECT_TRUE(run(scene, scene.plan(effect), std::nullopt));
      Bitmap last(size);
      const std::vector<PixelRect> painted =
          documented(effect, scene, [&](int, const Bitmap& shown) { last = shown; });
      EXPECT_EQ(scene.drawn, painted)
          << EffectNumbered(effect).name << ' ' << size.width << 'x' << size.height;
      EXPECT_EQ(scene.shown(), last) << EffectNumbered(effect).name << ' ' << size.width << 'x'
                                     << size.height;
    }
  }
}

TEST_F(TransitionRunnerTest, PacedShowsWhatTheDocumentedLoopShowsAtTheSameStep) {
  for (const PixelSize size : kSizes) {
    for (int effect = 1; effect < kEffectCount; ++effect) {
      for (const int timeMs : {100, 700, 5000}) {
        if (timeMs == 5000 && size.width * size.height > 3000)
          continue;  // enough frames for every step of the smaller ones
        support::TransitionScene scene(size);
        const TransitionPlan plan = scene.plan(effect);
        std::map<int, Bitmap> seen;  // the last one with all steps
        const std::int64_t start = clock.tickMs();
        loop.onWait = [&] {
          const auto due = (clock.tickMs() - start) * plan.stepCount / timeMs;
          if (plan.stepCount > 0) seen[static_cast<int>(due)] = scene.shown();
        };
        EXPECT_TRUE(run(scene, plan, timeMs));
        loop.onWait = nullptr;
        int steps = 0;
        std::size_t compared = 0;
        Bitmap last(size);
        documented(effect, scene, [&](int step, const Bitmap& shown) {
          last = shown;
          ++steps;
          const auto it = seen.find(step);
          if (it == seen.end()) return;
          ++compared;
          EXPECT_TRUE(it->second == shown) << EffectNumbered(effect).name << ' ' << size.width << 'x'
                                           << size.height << " in " << timeMs << " ms, step " << step;
        });
        EXPECT_EQ(steps, plan.stepCount);
        EXPECT_EQ(compared, seen.size());
        EXPECT_TRUE(scene.shown() == last) << EffectNumbered(effect).name;
      }
    }
  }
}

TEST_F(TransitionRunnerTest, PacedCopiesHardlyMorePixelsThanThePictureHas) {
  for (const PixelSize size : kSizes) {
    for (int effect = 1; effect <= 7; ++effect) {
      support::TransitionScene scene(size);
      run(scene, scene.plan(effect), 700);
      EXPECT_LE(static_cast<double>(scene.pixelsDrawn()), 1.05 * size.width * size.height)
          << EffectNumbered(effect).name << ' ' << size.width << 'x' << size.height;
    }
  }
}

TEST_F(TransitionRunnerTest, PacedFadeCopiesEachOfItsCellsOnce) {
  support::TransitionScene scene({600, 300});
  const TransitionPlan plan = scene.plan(8);
  long long cells = 0;
  for (int step = 0; step < plan.stepCount; ++step) {
    cells += plan.rectsOfStep(step).front().intersected({0, 0, 600, 300}).area();
  }
  run(scene, plan, 700);
  EXPECT_EQ(scene.pixelsDrawn(), cells);
  EXPECT_LE(cells, 600 * 300);
}

TEST_F(TransitionRunnerTest, PacedTakesTheTimeThatWasSet) {
  for (const int timeMs : {100, 333, 700, 5000}) {
    support::TransitionScene scene({60, 48});
    const std::int64_t start = clock.tickMs();
    run(scene, scene.plan(1), timeMs);
    EXPECT_EQ(clock.tickMs() - start, timeMs);
  }
}

TEST_F(TransitionRunnerTest, PacedWaitsForTheFramesOfASixtyHertzGrid) {
  support::TransitionScene scene({60, 48});
  const std::int64_t start = clock.tickMs();
  run(scene, scene.plan(1), 100);
  std::vector<std::int64_t> frames;
  for (const std::int64_t deadline : loop.deadlines) frames.push_back(deadline - start);
  EXPECT_EQ(frames, (std::vector<std::int64_t>{17, 34, 50, 67, 84, 100}));
}

TEST_F(TransitionRunnerTest, PacedShowsTheFirstStepAtOnce) {
  support::TransitionScene scene({60, 48});
  std::vector<PixelRect> beforeFirstWait;
  loop.onWait = [&] {
    if (loop.deadlines.size() == 1) beforeFirstWait = scene.drawn;
  };
  run(scene, scene.plan(1), 700);
  EXPECT_EQ(beforeFirstWait, (std::vector<PixelRect>{{0, 0, 1, 48}}));
}

TEST_F(TransitionRunnerTest, PacedSkipsStepsThatAreLate) {
  support::TransitionScene scene({60, 48});
  scene.onDrawn = [this] { clock.advance(70); };  // a machine that needs 70 ms for each drawing
  const std::int64_t start = clock.tickMs();
  EXPECT_TRUE(run(scene, scene.plan(1), 700));
  EXPECT_LE(scene.drawn.size(), 12U);
  EXPECT_LE(clock.tickMs() - start, 700 + 70 + 70);
  EXPECT_EQ(scene.shown(), *scene.source);
}

TEST_F(TransitionRunnerTest, PacedLetsEventsRunBetweenFramesWithoutDrawingMore) {
  support::TransitionScene quiet({60, 48});
  run(quiet, quiet.plan(1), 700);
  int ticks = 0;
  const auto timer = loop.startTimer(1, [&] { ++ticks; });
  support::TransitionScene busy({60, 48});
  run(busy, busy.plan(1), 700);
  loop.stopTimer(timer);
  EXPECT_EQ(ticks, 700);
  EXPECT_EQ(busy.drawn, quiet.drawn);
}

TEST_F(TransitionRunnerTest, PacedEndsAtOnceWhenTheShowEnds) {
  support::TransitionScene scene({60, 48});
  const std::int64_t start = clock.tickMs();
  std::size_t drawnAtTheEnd = 0;
  loop.postAfter(205, [&] {
    over = true;
    drawnAtTheEnd = scene.drawn.size();
  });
  EXPECT_FALSE(run(scene, scene.plan(1), 700));
  EXPECT_EQ(clock.tickMs() - start, 205);
  EXPECT_EQ(scene.drawn.size(), drawnAtTheEnd);
  EXPECT_GT(drawnAtTheEnd, 0U);
}

TEST_F(TransitionRunnerTest, PacedEndsWhenTheEventLoopQuits) {
  support::TransitionScene scene({60, 48});
  loop.postAfter(100, [&] { loop.quit(); });
  EXPECT_FALSE(run(scene, scene.plan(1), 700));
}

TEST_F(TransitionRunnerTest, WithoutATimeLooksForEventsOnlyEveryFifteenMilliseconds) {
  support::TransitionScene scene({60, 48});
  scene.onDrawn = [this] { clock.advance(1); };
  int checks = 0;
  const auto timer = loop.startTimer(1, [&] { ++checks; });
  EXPECT_TRUE(run(scene, scene.plan(1), std::nullopt));
  loop.stopTimer(timer);
  EXPECT_GE(checks, 3);
  EXPECT_LE(checks, 4);
  EXPECT_TRUE(loop.deadlines.empty());  // it never waits
}

TEST_F(TransitionRunnerTest, WithoutATimeEndsSoonAfterTheShowEnds) {
  support::TransitionScene scene({60, 48});
  scene.onDrawn = [this] { clock.advance(1); };
  loop.postAfter(20, [&] { over = true; });
  EXPECT_FALSE(run(scene, scene.plan(1), std::nullopt));
  EXPECT_LE(scene.drawn.size(), 31U);
}

TEST_F(TransitionRunnerTest, DrawsNothingAfterTheShow) {
  support::TransitionScene scene({60, 48});
  over = true;
  EXPECT_FALSE(run(scene, scene.plan(1), 700));
  EXPECT_FALSE(run(scene, scene.plan(1), std::nullopt));
  EXPECT_TRUE(scene.drawn.empty());
}

TEST_F(TransitionRunnerTest, CutsItsRectanglesToTheSmallerOfPictureAndBox) {
  support::TransitionScene scene({60, 48});
  scene.box.move(0, 0, 30 * 15, 20 * 15);
  run(scene, scene.plan(6), 700);
  for (const PixelRect& area : scene.drawn) EXPECT_EQ(area.intersected({0, 0, 30, 20}), area);
  EXPECT_EQ(scene.pixelsDrawn(), 30 * 20);
}

TEST_F(TransitionRunnerTest, AnEffectThatPaintsNothingTakesNoTime) {
  support::TransitionScene scene({60, 48});
  const TransitionPlan nothing[] = {
      {Growth::Covering, 0, [](int) { return std::vector<PixelRect>{}; }},
      {Growth::Covering, 5,
       [](int) {
         return std::vector<PixelRect>{{0, 0, 0, 48}};
       }},
      {Growth::Covering, 5,
       [](int) {
         return std::vector<PixelRect>{{60, 0, 60, 48}};
       }},
      {Growth::Accumulating, 9,
       [](int step) {
         return std::vector<PixelRect>{{step, step, 0, 0}};
       }},
  };
  const std::int64_t start = clock.tickMs();
  for (const TransitionPlan& plan : nothing) EXPECT_TRUE(run(scene, plan, 5000));
  EXPECT_EQ(clock.tickMs(), start);
  const TransitionPlan late{Growth::Accumulating, 9, [](int step) {
                              return std::vector<PixelRect>{{0, 0, step == 8 ? 1 : 0, 1}};
                            }};
  EXPECT_TRUE(run(scene, late, 5000));
  EXPECT_EQ(clock.tickMs(), start + 5000) << "one pixel is seen";
}

TEST(RectDifference, IsWhatTheHoleLeaves) {
  const PixelRect whole{10, 10, 10, 10};
  EXPECT_EQ(base::Difference(whole, {0, 0, 5, 5}), (std::vector{whole}));
  EXPECT_TRUE(base::Difference(whole, {0, 0, 40, 40}).empty());
  EXPECT_EQ(base::Difference(whole, {12, 13, 2, 3}),
            (std::vector<PixelRect>{{10, 10, 10, 3}, {10, 13, 2, 3}, {14, 13, 6, 3}, {10, 16, 10, 4}}));
  EXPECT_EQ(base::Difference(whole, {10, 10, 10, 9}), (std::vector<PixelRect>{{10, 19, 10, 1}}));
  EXPECT_TRUE(base::Difference({}, {}).empty());
}

TEST(TransitionTime, IsTakenFromAHundredMillisecondsToFiveSeconds) {
  EXPECT_EQ(ParseTransitionTime("100"), 100);
  EXPECT_EQ(ParseTransitionTime("700"), 700);
  EXPECT_EQ(ParseTransitionTime(" 700 "), 700);
  EXPECT_EQ(ParseTransitionTime("5000"), 5000);
}

TEST(TransitionTime, OfAnyOtherTextLeavesTheLoopTight) {
  for (const char* text :
       {"", " ", "99", "5001", "0", "-700", "700 ms", "abc", "700.5", "7 00", "99999999999999"}) {
    EXPECT_EQ(ParseTransitionTime(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace saver
