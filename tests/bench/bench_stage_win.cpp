#include "bench/bench_stage_win.h"

#include <cmath>

#include "saver/transitions/effects.h"

namespace bench {

BenchStage::BenchStage(const base::PixelRect& place) {
  form.setHost(&stage);
  form.setBackColor(base::kBlack);
  window.cover(place);
  picture.setVisible(false);
  stage.show(form, background, picture, {});
  stage.flush();
}

BenchStage::~BenchStage() { window.close(); }

void BenchStage::placePicture(const base::PixelRect& place) {
  const auto twips = [](int pixels) { return static_cast<float>(pixels * 15); };
  picture.move(twips(place.left), twips(place.top), twips(place.width), twips(place.height));
}

saver::TransitionPlan PlanFor(int number, const forms::PictureBox& box, base::Random& random) {
  return saver::EffectNumbered(number).makePlan({.scaleWidth = box.scaleWidth(),
                                                 .scaleHeight = box.scaleHeight(),
                                                 .destinationWidth = box.scaleWidth(),
                                                 .destinationHeight = box.scaleHeight(),
                                                 .outerWidthTwips = box.width(),
                                                 .random = random});
}

base::Bitmap PhotoLike(base::PixelSize size) {
  base::Bitmap picture(size);
  std::uint32_t state = 12345;
  for (int y = 0; y < size.height; ++y) {
    const float wave = std::sin(static_cast<float>(y) * 0.01F);
    for (int x = 0; x < size.width; ++x) {
      state = state * 1664525U + 1013904223U;
      const int grain = static_cast<int>(state >> 28);
      const int light = static_cast<int>(96 + 64 * wave + 48 * std::sin(static_cast<float>(x) * 0.02F));
      picture.row(y)[x] = base::OpaquePixel(
          base::Rgb(light + grain, (x >> 4 ^ y >> 4) % 64 + light / 2 + grain, 200 - light / 2 - grain));
    }
  }
  picture.setOpaque(true);
  return picture;
}

}  // namespace bench
