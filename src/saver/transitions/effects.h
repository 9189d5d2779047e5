// The one table of the transition effects.
#pragma once

#include <array>
#include <string>

#include "saver/transitions/plan.h"
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

// In the order of the effect numbers.
const std::array<Effect, kEffectCount>& Effects();

// 0 <= number < kEffectCount.
const Effect& EffectNumbered(int number);

}  // namespace saver
