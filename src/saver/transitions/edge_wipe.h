// The pace that the wipes from an edge share.
#pragma once

#include "saver/transitions/plan.h"

namespace saver {

// Pixels by which an edge wipe grows at each step: two for boxes 9000 twips wide or wider, else one.
int EdgeWipePace(const EffectInput& input);

// How many strips an edge wipe paints. Strip `step` is 1 + step x pace pixels wide; at the double pace the
// last column of an even width is left to whoever assigns the whole picture.
int EdgeWipeSteps(const EffectInput& input);

}  // namespace saver
