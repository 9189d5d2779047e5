// The plans of the eight effects that have steps.
#pragma once

#include "saver/transitions/plan.h"

namespace saver {

TransitionPlan PlanLeftWipe(const EffectInput& input);
TransitionPlan PlanRightWipe(const EffectInput& input);
TransitionPlan PlanRightAndLeftWipe(const EffectInput& input);
TransitionPlan PlanUpAndDown(const EffectInput& input);
TransitionPlan PlanCenter(const EffectInput& input);
TransitionPlan PlanHorizontalBlinds(const EffectInput& input);
TransitionPlan PlanVerticalBlinds(const EffectInput& input);

// Draws its cells from input.random while it is being made.
TransitionPlan PlanFade(const EffectInput& input);

}  // namespace saver
