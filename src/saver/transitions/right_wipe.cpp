// Right wipe: the new picture grows from the right edge.
#include "saver/transitions/edge_wipe.h"
#include "saver/transitions/plans.h"

namespace saver {

TransitionPlan PlanRightWipe(const EffectInput& input) {
  const int pace = EdgeWipePace(input);
  const double width = input.scaleWidth;
  const double height = input.scaleHeight;
  return {Growth::Covering, EdgeWipeSteps(input), [pace, width, height](int step) {
            const int strip = 1 + step * pace;
            return std::vector{WholePixels(width - strip, 0, strip, height)};
          }};
}

}  // namespace saver
