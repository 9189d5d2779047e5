#include "saver/transitions/effects.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/rounding.h"

namespace saver {

namespace {

using Record = settings::SettingsRecord;

// In the order of the effect numbers.
constexpr std::array<Effect, kEffectCount> kEffects{{
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

constexpr std::int64_t kPatienceMs = 100;

// A clock that stands still must not hold the user prisoner: so many draws in vain take about as long.
constexpr int kPatienceDraws = 1'000'000;

// Between two draws once patience has ended, so that an endless choice does not keep the processor busy.
constexpr std::int64_t kRestMs = 10;

}  // namespace

const Effect& EffectNumbered(int number) { return kEffects.at(static_cast<std::size_t>(number)); }

EffectFlags FlagsOf(const settings::SettingsRecord& record) {
  EffectFlags flags{};
  std::ranges::transform(kEffects, flags.begin(),
                         [&record](const Effect& effect) { return base::StrictDouble(record.*effect.flag); });
  return flags;
}

int CountEnabledEffects(const EffectFlags& flags) {
  return static_cast<int>(std::ranges::count_if(flags, [](double flag) { return flag != 0; }));
}

std::optional<int> DrawEffect(const EffectFlags& flags, base::Random& random) {
  const int k = static_cast<int>(base::Int(kEffectCount * static_cast<double>(random.next())));
  if (flags.at(static_cast<std::size_t>(k)) == 1) return k;
  return std::nullopt;
}

std::optional<int> ChooseEffect(const EffectFlags& flags, base::Random& random, const os::Clock& clock,
                                os::EventLoop& loop, const std::function<bool()>& isOver) {
  if (CountEnabledEffects(flags) == 0) return kPlainShow;
  const std::int64_t patienceEnds = clock.tickMs() + kPatienceMs;
  for (int draws = 1;; ++draws) {
    random.reseed(os::SecondsSinceMidnight(clock.now()));
    if (const std::optional<int> effect = DrawEffect(flags, random)) return effect;
    if (draws < kPatienceDraws && clock.tickMs() < patienceEnds) continue;
    draws = kPatienceDraws;
    loop.waitUntil(clock.tickMs() + kRestMs);
    if (isOver() || loop.isQuitting()) return std::nullopt;
  }
}

}  // namespace saver
