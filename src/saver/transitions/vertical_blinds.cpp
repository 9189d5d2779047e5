// Vertical blinds: columns 20 pixels apart grow to the right until they touch.
#include "saver/transitions/blinds.h"
#include "saver/transitions/plans.h"

namespace saver {

TransitionPlan PlanVerticalBlinds(const EffectInput& input) {
  const double height = input.scaleHeight;
  const float last = input.scaleWidth / kBlindPitch;  // single precision, not truncated
  return {Growth::Covering, kBlindSteps, [height, last](int step) {
            std::vector<base::PixelRect> strips;
            for (int j = 0; static_cast<float>(j) <= last; ++j) {
              strips.push_back(WholePixels(j * kBlindPitch, 0, step + 1, height));
            }
            return strips;
          }};
}

}  // namespace saver
