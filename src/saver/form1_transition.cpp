// The transition of the show: the effect is chosen, laid out for the picture, and run.
#include "base/errors.h"
#include "base/number_text.h"
#include "saver/form1.h"
#include "saver/transitions/choose_effect.h"
#include "saver/transitions/transition_runner.h"
#include "saver/transitions/transition_time.h"

namespace saver {

namespace {

EffectFlags FlagsOf(const settings::SettingsRecord& record) {
  EffectFlags flags{};
  for (std::size_t number = 0; number < flags.size(); ++number) {
    flags[number] = base::StrictDouble(record.*EffectNumbered(static_cast<int>(number)).flag);
  }
  return flags;
}

}  // namespace

void Form1::RunTransition() {
  // An error in an effect is not reported: whoever asked for it goes on to show the new picture in full.
  try {
    const pictures::SharedPicture& next = IntialPicture.picture();
    if (!next) return;
    const auto over = [this] { return isOver(); };
    const std::optional<int> number =
        ChooseEffect(FlagsOf(settings_.record), random_, services_.clock, services_.loop, over);
    if (!number || isOver() || effectGivenUp_) return;
    const Effect& effect = EffectNumbered(*number);
    if (effect.isPlainShow()) {
      DisplayingPicture.setPicture(next);
      services_.stage.flush();
      return;
    }
    const base::SharedBitmap pixels = next->drawnAt(next->size());
    if (!pixels) return;
    const TransitionPlan plan = effect.makePlan({.scaleWidth = IntialPicture.scaleWidth(),
                                                 .scaleHeight = IntialPicture.scaleHeight(),
                                                 .destinationWidth = DisplayingPicture.scaleWidth(),
                                                 .destinationHeight = DisplayingPicture.scaleHeight(),
                                                 .outerWidthTwips = DisplayingPicture.width(),
                                                 .random = random_});
    services_.stage.flush();
    const auto givenUp = [this] { return isOver() || effectGivenUp_; };
    TransitionRunner(services_.clock, services_.loop, givenUp)
        .run(plan, DisplayingPicture, pixels, ParseTransitionTime(settings_.record.transitionTime));
  } catch (const base::RunTimeError&) {
    return;
  }
}

}  // namespace saver
