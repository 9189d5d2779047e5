// Every effect copied by the graphics system against the kept pictures.
#include <gtest/gtest.h>

#include "os/dib_win.h"
#include "saver/transitions/effects.h"
#include "support/golden_pictures.h"
#include "support/transition_scene.h"

namespace saver {
namespace {

base::Bitmap PixelsOf(const os::Dib& dib) {
  const base::BitmapView view = dib.view();
  base::Bitmap copy(view.size);
  for (int y = 0; y < view.size.height; ++y) std::copy_n(view.row(y), view.size.width, copy.row(y));
  return copy;
}

// One BitBlt for each rectangle of the steps 0 to `step`.
std::string PictureAfterStep(int effect, int step) {
  support::TransitionScene scene(support::kGoldenSize);
  const os::Dib source(support::kGoldenSize);
  const os::Dib target(support::kGoldenSize);
  base::CopyRect(source.view(), {0, 0}, *scene.source, base::PixelRect::ofSize(support::kGoldenSize));
  const TransitionPlan plan = scene.plan(effect);
  for (int i = 0; i <= step; ++i) {
    for (const base::PixelRect& r : plan.rectsOfStep(i)) {
      BitBlt(target.dc(), r.left, r.top, r.width, r.height, source.dc(), r.left, r.top, SRCCOPY);
    }
  }
  return support::TextOfPicture(PixelsOf(target));
}

class GoldenPicturesByGdi : public testing::TestWithParam<int> {};

TEST_P(GoldenPicturesByGdi, AreTheSame) {
  const int steps = support::TransitionScene(support::kGoldenSize).plan(GetParam()).stepCount;
  const std::string text =
      support::GoldenText(steps, [](int step) { return PictureAfterStep(GetParam(), step); });
  EXPECT_EQ(support::ReadGolden(GetParam()), text);
}

INSTANTIATE_TEST_SUITE_P(OfEveryEffect, GoldenPicturesByGdi, testing::Range(1, kEffectCount));

}  // namespace
}  // namespace saver
