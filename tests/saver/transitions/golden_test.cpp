// Pictures of every effect on its way, kept beside the tests. LUMORA_REMAKE_GOLDEN=1 makes them again.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "saver/transitions/transition_runner.h"
#include "support/fake_event_loop.h"
#include "support/transition_scene.h"

namespace saver {
namespace {

constexpr base::PixelSize kSize{60, 48};

std::string PathOf(const Effect& effect) {
  std::string name = effect.name;
  for (char& c : name) c = c == ' ' ? '-' : c;
  return std::string(LUMORA_SOURCE_DIR) + "/tests/saver/golden/" + name + ".txt";
}

// What the box shows after the steps 0 to `step`, below a heading.
std::string PictureOfStep(int effect, int step) {
  support::TransitionScene scene(kSize);
  support::FakeClock clock;
  support::FakeEventLoop loop(clock);
  TransitionPlan plan = scene.plan(effect);
  std::ostringstream text;
  text << "step " << step + 1 << " of " << plan.stepCount << '\n';
  plan.stepCount = step + 1;
  TransitionRunner(clock, loop, [] { return false; }).run(plan, scene.box, scene.source, std::nullopt);
  text << scene.text();
  return text.str();
}

std::string PicturesOf(int effect) {
  const int steps = support::TransitionScene(kSize).plan(effect).stepCount;
  std::string pictures;
  for (const int step : {0, steps / 3, steps * 2 / 3, steps - 1}) pictures += PictureOfStep(effect, step);
  return pictures;
}

class GoldenPictures : public testing::TestWithParam<int> {};

TEST_P(GoldenPictures, AreStillDrawn) {
  const std::string pictures = PicturesOf(GetParam());
  const std::string path = PathOf(EffectNumbered(GetParam()));
  if (std::getenv("LUMORA_REMAKE_GOLDEN")) {
    std::ofstream(path, std::ios::binary) << pictures;
    GTEST_SKIP() << "made again: " << path;
  }
  std::ifstream file(path, std::ios::binary);
  ASSERT_TRUE(file) << path;
  std::ostringstream golden;
  golden << file.rdbuf();
  EXPECT_EQ(golden.str(), pictures);
}

INSTANTIATE_TEST_SUITE_P(OfEveryEffect, GoldenPictures, testing::Range(1, kEffectCount));

}  // namespace
}  // namespace saver
