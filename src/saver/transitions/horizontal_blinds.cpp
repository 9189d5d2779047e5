// Horizontal blinds: strips 20 pixels apart grow downwards until they touch.
#include "base/rounding.h"
#include "saver/transitions/blinds.h"
#include "saver/transitions/plans.h"

namespace saver {

TransitionPlan PlanHorizontalBlinds(const EffectInput& input) {
  const double width = input.scaleWidth;
  const double last = base::Fix(static_cast<double>(input.scaleHeight / kBlindPitch));
  return {Growth::Covering, kBlindSteps, [width, last](int step) {
            std::vector<base::PixelRect> strips;
            for (int j = 0; j <= last; ++j)
              strips.push_back(WholePixels(0, j * kBlindPitch, width, step + 1));
            return strips;
          }};
}

}  // namespace saver
