#include "saver/transitions/plans.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

#include "support/documented_effects.h"
#include "support/transition_scene.h"

namespace saver {
namespace {

using base::PixelRect;
using Rects = std::vector<PixelRect>;

class Plans : public testing::Test {
 protected:
  EffectInput input(float width, float height, float outerWidthTwips = 0) {
    return {width, height, width, height, outerWidthTwips, random};
  }

  static Rects lastRects(const TransitionPlan& plan) { return plan.rectsOfStep(plan.stepCount - 1); }

  base::Random random;
};

TEST_F(Plans, LeftWipeGrowsByOneColumnFromTheLeftEdge) {
  const TransitionPlan plan = PlanLeftWipe(input(60, 48));
  EXPECT_EQ(plan.stepCount, 60);
  EXPECT_EQ(plan.rectsOfStep(0), (Rects{{0, 0, 1, 48}}));
  EXPECT_EQ(plan.rectsOfStep(29), (Rects{{0, 0, 30, 48}}));
  EXPECT_EQ(lastRects(plan), (Rects{{0, 0, 60, 48}}));
}

TEST_F(Plans, RightWipeGrowsByOneColumnFromTheRightEdge) {
  const TransitionPlan plan = PlanRightWipe(input(60, 48));
  EXPECT_EQ(plan.stepCount, 60);
  EXPECT_EQ(plan.rectsOfStep(0), (Rects{{59, 0, 1, 48}}));
  EXPECT_EQ(lastRects(plan), (Rects{{0, 0, 60, 48}}));
}

TEST_F(Plans, ABox9000TwipsWideHalvesTheStepsOfTheEdgeWipes) {
  EXPECT_EQ(PlanLeftWipe(input(600, 10, 8999)).stepCount, 600);
  EXPECT_EQ(PlanLeftWipe(input(600, 10, 9000)).stepCount, 300);
  EXPECT_EQ(PlanRightWipe(input(600, 10, 8999)).stepCount, 600);
  EXPECT_EQ(PlanRightWipe(input(600, 10, 9000)).stepCount, 300);
}

TEST_F(Plans, TheDoubleStepShowsOddWidthsOnly) {
  const TransitionPlan even = PlanLeftWipe(input(600, 10, 9000));
  EXPECT_EQ(even.rectsOfStep(0), (Rects{{0, 0, 1, 10}}));
  EXPECT_EQ(even.rectsOfStep(1), (Rects{{0, 0, 3, 10}}));
  EXPECT_EQ(lastRects(even), (Rects{{0, 0, 599, 10}}));
  EXPECT_EQ(lastRects(PlanLeftWipe(input(601, 10, 9015))), (Rects{{0, 0, 601, 10}}));
  EXPECT_EQ(lastRects(PlanRightWipe(input(600, 10, 9000))), (Rects{{1, 0, 599, 10}}));
}

TEST_F(Plans, RightAndLeftWipeOpensFromTheMiddleByTwoColumns) {
  const TransitionPlan plan = PlanRightAndLeftWipe(input(60, 48));
  EXPECT_EQ(plan.stepCount, 30);
  EXPECT_EQ(plan.rectsOfStep(0), (Rects{{29, 0, 1, 48}}));
  EXPECT_EQ(plan.rectsOfStep(1), (Rects{{28, 0, 3, 48}}));
  EXPECT_EQ(lastRects(plan), (Rects{{0, 0, 59, 48}}));
}

TEST_F(Plans, RightAndLeftWipeOfAnOddWidthStaysInTheMiddle) {
  const TransitionPlan plan = PlanRightAndLeftWipe(input(61, 48));
  EXPECT_EQ(plan.stepCount, 30);
  EXPECT_EQ(plan.rectsOfStep(0), (Rects{{30, 0, 1, 48}}));
  EXPECT_EQ(lastRects(plan), (Rects{{1, 0, 59, 48}}));
}

TEST_F(Plans, UpAndDownOpensFromTheMiddleByTwoRows) {
  const TransitionPlan plan = PlanUpAndDown(input(60, 48));
  EXPECT_EQ(plan.stepCount, 24);
  EXPECT_EQ(plan.rectsOfStep(0), (Rects{{0, 23, 60, 1}}));
  EXPECT_EQ(lastRects(plan), (Rects{{0, 0, 60, 47}}));
}

TEST_F(Plans, CentreOfAWidePictureStartsAsWideAsTheSidesDiffer) {
  const TransitionPlan plan = PlanCenter(input(60, 48));
  EXPECT_EQ(plan.stepCount, 48);
  EXPECT_EQ(plan.rectsOfStep(0), (Rects{{24, 23, 12, 1}}));
  EXPECT_EQ(lastRects(plan), (Rects{{0, 0, 59, 48}}));
}

TEST_F(Plans, CentreOfASquareStartsAtOnePixel) {
  const TransitionPlan plan = PlanCenter(input(40, 40));
  EXPECT_EQ(plan.stepCount, 39);
  EXPECT_EQ(plan.rectsOfStep(0), (Rects{{19, 19, 1, 1}}));
  EXPECT_EQ(lastRects(plan), (Rects{{0, 0, 39, 39}}));
}

TEST_F(Plans, CentreOfAHighPictureStartsAsHighAsTheSidesDiffer) {
  const TransitionPlan plan = PlanCenter(input(48, 60));
  EXPECT_EQ(plan.stepCount, 47);
  EXPECT_EQ(plan.rectsOfStep(0), (Rects{{23, 24, 1, 12}}));
  EXPECT_EQ(lastRects(plan), (Rects{{0, 1, 47, 58}}));
}

TEST_F(Plans, CentreKeepsTheMiddleOfThePicture) {
  const TransitionPlan plan = PlanCenter(input(61, 47));
  for (int step = 0; step < plan.stepCount; ++step) {
    const PixelRect rect = plan.rectsOfStep(step).front();
    EXPECT_LE(std::abs(rect.left + rect.right() - 61), 1) << step;
    EXPECT_LE(std::abs(rect.top + rect.bottom() - 47), 1) << step;
  }
}

TEST_F(Plans, HorizontalBlindsGrowInTwentyStepsTwentyPixelsApart) {
  const TransitionPlan plan = PlanHorizontalBlinds(input(60, 48));
  EXPECT_EQ(plan.stepCount, 20);
  EXPECT_EQ(plan.rectsOfStep(0), (Rects{{0, 0, 60, 1}, {0, 20, 60, 1}, {0, 40, 60, 1}}));
  EXPECT_EQ(lastRects(plan), (Rects{{0, 0, 60, 20}, {0, 20, 60, 20}, {0, 40, 60, 20}}));
}

TEST_F(Plans, HorizontalBlindsOfALowPictureStillRunTwentyStepsOverOneStrip) {
  const TransitionPlan plan = PlanHorizontalBlinds(input(60, 12));
  EXPECT_EQ(plan.stepCount, 20);
  EXPECT_EQ(plan.rectsOfStep(4), (Rects{{0, 0, 60, 5}}));
  EXPECT_EQ(lastRects(plan), (Rects{{0, 0, 60, 20}}));
}

TEST_F(Plans, VerticalBlindsGrowInTwentyStepsTwentyPixelsApart) {
  const TransitionPlan plan = PlanVerticalBlinds(input(59, 48));
  EXPECT_EQ(plan.stepCount, 20);
  EXPECT_EQ(plan.rectsOfStep(0), (Rects{{0, 0, 1, 48}, {20, 0, 1, 48}, {40, 0, 1, 48}}));
}

TEST_F(Plans, BlindsOfAMultipleOfThePitchHaveOneMoreBehindTheEdge) {
  EXPECT_EQ(PlanHorizontalBlinds(input(60, 40)).rectsOfStep(0).size(), 3U);
  EXPECT_EQ(PlanHorizontalBlinds(input(60, 39)).rectsOfStep(0).size(), 2U);
  EXPECT_EQ(PlanVerticalBlinds(input(40, 48)).rectsOfStep(0).size(), 3U);
  EXPECT_EQ(PlanVerticalBlinds(input(39, 48)).rectsOfStep(0).size(), 2U);
}

TEST_F(Plans, FadeSpansOneAndAHalfTimesThePictureByAHundredCells) {
  const TransitionPlan plan = PlanFade(input(800, 600));
  EXPECT_EQ(plan.growth, Growth::Accumulating);
  for (int step = 0; step < plan.stepCount; ++step) {
    const PixelRect cell = plan.rectsOfStep(step).front();
    EXPECT_EQ(cell.size(), (base::PixelSize{12, 9}));
    EXPECT_TRUE(cell.left % 12 == 0 && cell.left < 1200 && cell.top % 9 == 0 && cell.top < 900);
  }
}

TEST_F(Plans, FadeRoundsItsCellsWithHalvesToTheEvenNumber) {
  const TransitionPlan plan = PlanFade(input(100, 300));  // 1.5 and 4.5 pixels
  EXPECT_EQ(plan.rectsOfStep(0).front().size(), (base::PixelSize{2, 4}));
}

TEST_F(Plans, FadeShowsNoCellTwiceAndNearlyAll) {
  const TransitionPlan plan = PlanFade(input(800, 600));
  std::set<std::pair<int, int>> cells;
  for (int step = 0; step < plan.stepCount; ++step) {
    const PixelRect cell = plan.rectsOfStep(step).front();
    EXPECT_TRUE(cells.emplace(cell.left, cell.top).second);
  }
  EXPECT_GT(cells.size(), 9900U);
  EXPECT_LE(cells.size(), 10000U);
}

TEST_F(Plans, FadeEndsAfterAThousandMissesInARow) {
  const TransitionPlan plan = PlanFade(input(800, 600));
  // The same numbers once more: the draws behind the last cell must be a thousand, all of cells shown
  // already.
  base::Random again;
  std::set<std::pair<int, int>> cells;
  while (static_cast<int>(cells.size()) < plan.stepCount) {
    const int x = static_cast<int>(100.0 * again.next());
    cells.emplace(x, static_cast<int>(100.0 * again.next()));
  }
  for (int miss = 0; miss < 1000; ++miss) {
    const int x = static_cast<int>(100.0 * again.next());
    ASSERT_TRUE(cells.contains({x, static_cast<int>(100.0 * again.next())})) << miss;
  }
  EXPECT_EQ(random.next(), again.next());
}

TEST_F(Plans, FadeOfATinyPictureHasCellsWithoutExtent) {
  EXPECT_TRUE(PlanFade(input(1, 1)).rectsOfStep(0).front().isEmpty());
}

TEST_F(Plans, OfASinglePixelHaveFewStepsOrNone) {
  EXPECT_EQ(PlanLeftWipe(input(1, 1)).stepCount, 1);
  EXPECT_EQ(PlanRightWipe(input(1, 1)).stepCount, 1);
  EXPECT_EQ(PlanRightAndLeftWipe(input(1, 1)).stepCount, 0);
  EXPECT_EQ(PlanUpAndDown(input(1, 1)).stepCount, 0);
  EXPECT_EQ(PlanCenter(input(1, 1)).stepCount, 0);
}

TEST_F(Plans, OfAnEmptyPictureHaveNothingToShow) {
  EXPECT_EQ(PlanLeftWipe(input(0, 0)).stepCount, 0);
  EXPECT_EQ(PlanRightAndLeftWipe(input(0, 0)).stepCount, 0);
  EXPECT_EQ(PlanCenter(input(0, 0)).stepCount, 0);
  EXPECT_TRUE(lastRects(PlanHorizontalBlinds(input(0, 0))).front().isEmpty());
}

TEST_F(Plans, CutFractionsToTheWholePixelBelow) {
  EXPECT_EQ(WholePixels(1.9, -0.5, 2.99, 3), (PixelRect{1, -1, 2, 3}));
  EXPECT_EQ(PlanLeftWipe(input(10.75F, 4.5F)).stepCount, 10);
  EXPECT_EQ(lastRects(PlanLeftWipe(input(10.75F, 4.5F))), (Rects{{0, 0, 10, 4}}));
}

TEST(CoveringPlans, ContainAllThatEarlierStepsHaveShown) {
  for (const base::PixelSize size :
       {base::PixelSize{60, 48}, {61, 47}, {47, 61}, {40, 40}, {33, 7}, {620, 30}}) {
    support::TransitionScene scene(size);
    for (int effect = 1; effect <= 7; ++effect) {
      const TransitionPlan plan = scene.plan(effect);
      ASSERT_EQ(plan.growth, Growth::Covering);
      for (int step = 1; step < plan.stepCount; ++step) {
        const Rects before = plan.rectsOfStep(step - 1);
        const Rects now = plan.rectsOfStep(step);
        ASSERT_EQ(before.size(), now.size());
        for (std::size_t j = 0; j < now.size(); ++j) EXPECT_EQ(now[j].united(before[j]), now[j]);
      }
    }
  }
}

}  // namespace
}  // namespace saver
