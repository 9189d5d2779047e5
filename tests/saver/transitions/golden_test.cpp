// Every effect against its kept pictures. LUMORA_REMAKE_GOLDEN=1 makes them again.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "saver/transitions/transition_runner.h"
#include "support/fake_event_loop.h"
#include "support/golden_pictures.h"
#include "support/transition_scene.h"

namespace saver {
namespace {

std::string PictureAfterStep(int effect, int step) {
  support::TransitionScene scene(support::kGoldenSize);
  support::FakeClock clock;
  support::FakeEventLoop loop(clock);
  TransitionPlan plan = scene.plan(effect);
  plan.stepCount = step + 1;
  TransitionRunner(clock, loop, [] { return false; }).run(plan, scene.box, scene.source, std::nullopt);
  return support::TextOfPicture(scene.shown());
}

class GoldenPictures : public testing::TestWithParam<int> {};

TEST_P(GoldenPictures, AreStillDrawn) {
  const int steps = support::TransitionScene(support::kGoldenSize).plan(GetParam()).stepCount;
  const std::string text =
      support::GoldenText(steps, [](int step) { return PictureAfterStep(GetParam(), step); });
  if (std::getenv("LUMORA_REMAKE_GOLDEN")) {
    std::ofstream(support::GoldenPath(GetParam()), std::ios::binary) << text;
    GTEST_SKIP() << "made again: " << support::GoldenPath(GetParam());
  }
  EXPECT_EQ(support::ReadGolden(GetParam()), text);
}

INSTANTIATE_TEST_SUITE_P(OfEveryEffect, GoldenPictures, testing::Range(1, kEffectCount));

}  // namespace
}  // namespace saver
