// Left wipe: the new picture grows from the left edge.
#include "saver/transitions/edge_wipe.h"
#include "saver/transitions/plans.h"

namespace saver {

TransitionPlan PlanLeftWipe(const EffectInput& input) {
  const int pace = EdgeWipePace(input);
  const double height = input.scaleHeight;
  return {Growth::Covering, EdgeWipeSteps(input),
          [pace, height](int step) { return std::vector{WholePixels(0, 0, 1 + step * pace, height)}; }};
}

}  // namespace saver
