// Right-and-left wipe: the new picture opens from its vertical centre line.
#include "saver/transitions/plans.h"

namespace saver {

TransitionPlan PlanRightAndLeftWipe(const EffectInput& input) {
  const double width = input.scaleWidth;
  const double height = input.scaleHeight;
  return {Growth::Covering, CountedSteps(1, width / 2), [width, height](int step) {
            const int band = 1 + step * 2;
            return std::vector{WholePixels((width - band) / 2, 0, band, height)};
          }};
}

}  // namespace saver
