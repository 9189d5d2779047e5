// Up-and-down: the new picture opens from its horizontal centre line.
#include "saver/transitions/plans.h"

namespace saver {

TransitionPlan PlanUpAndDown(const EffectInput& input) {
  const double width = input.scaleWidth;
  const double height = input.scaleHeight;
  return {Growth::Covering, CountedSteps(1, height / 2), [width, height](int step) {
            const int band = 1 + step * 2;
            return std::vector{WholePixels(0, (height - band) / 2, width, band)};
          }};
}

}  // namespace saver
