// The transition effects: their one table, from which each change of pictures draws.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "base/random.h"
#include "os/clock.h"
#include "os/event_loop.h"
#include "saver/transitions/plans.h"
#include "settings/settings_record.h"

namespace saver {

constexpr int kEffectCount = 9;

// Effect 0 assigns the whole new picture in one step; it is also what happens with no effect enabled.
constexpr int kPlainShow = 0;

struct Effect {
  const char* name;
  std::string settings::SettingsRecord::*flag;           // "0" or "1" as the dialog writes it
  TransitionPlan (*makePlan)(const EffectInput& input);  // null for the plain show, which has no steps

  bool isPlainShow() const { return makePlan == nullptr; }
};

// 0 <= number < kEffectCount.
const Effect& EffectNumbered(int number);

// The nine flags as numbers, in the order of the effect numbers.
using EffectFlags = std::array<double, kEffectCount>;

// Throws base::RunTimeError for a flag that is no number.
EffectFlags FlagsOf(const settings::SettingsRecord& record);

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
