#include "saver/transitions/effects.h"

#include "saver/transitions/plans.h"

namespace saver {

const std::array<Effect, kEffectCount>& Effects() {
  using Record = settings::SettingsRecord;
  static constexpr std::array<Effect, kEffectCount> kEffects{{
      {"plain show", &Record::bStandard, nullptr},
      {"left wipe", &Record::bLeftWipe, PlanLeftWipe},
      {"right wipe", &Record::bRightWipe, PlanRightWipe},
      {"right-and-left wipe", &Record::bRightandLeftWipe, PlanRightAndLeftWipe},
      {"up-and-down", &Record::bUpAndDown, PlanUpAndDown},
      {"centre", &Record::bCenter, PlanCenter},
      {"horizontal blinds", &Record::bHorizontalBlinds, PlanHorizontalBlinds},
      {"vertical blinds", &Record::bVerticalBlinds, PlanVerticalBlinds},
      {"fade", &Record::bFade, PlanFade},
  }};
  return kEffects;
}

const Effect& EffectNumbered(int number) { return Effects().at(static_cast<std::size_t>(number)); }

}  // namespace saver
