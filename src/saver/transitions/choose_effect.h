// The choice of the effect for one change of pictures.
#pragma once

#include <array>
#include <functional>
#include <optional>

#include "base/random.h"
#include "os/clock.h"
#include "os/event_loop.h"
#include "saver/transitions/effects.h"

namespace saver {

// The nine flags as numbers, in the order of the effect numbers.
using EffectFlags = std::array<double, kEffectCount>;

// An effect counts as enabled when its flag is anything but 0.
int CountEnabledEffects(const EffectFlags& flags);

// Draws one effect number, and gives it when its flag is exactly 1. An enabled effect with another flag is
// thus never chosen.
std::optional<int> DrawEffect(const EffectFlags& flags, base::Random& random);

// The effect for this change; the plain show when none is enabled. Draws until one is hit, reseeding from the
// clock before each draw. With flags that no draw can hit that is for ever: so once nothing has been chosen
// for 100 ms, the events that are waiting run between the draws. Nothing when they have brought the end of
// the show.
std::optional<int> ChooseEffect(const EffectFlags& flags, base::Random& random, const os::Clock& clock,
                                os::EventLoop& loop, const std::function<bool()>& isOver);

}  // namespace saver
