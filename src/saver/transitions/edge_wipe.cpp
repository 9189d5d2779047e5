#include "saver/transitions/edge_wipe.h"

namespace saver {

namespace {

constexpr float kWideBoxTwips = 9000;

}  // namespace

int EdgeWipePace(const EffectInput& input) { return input.outerWidthTwips >= kWideBoxTwips ? 2 : 1; }

int EdgeWipeSteps(const EffectInput& input) { return CountedSteps(1, input.scaleWidth, EdgeWipePace(input)); }

}  // namespace saver
