// The clock or the countdown in the bottom right corner of the screen.
#pragma once

#include <optional>
#include <string>

#include "forms/label.h"
#include "forms/timer.h"
#include "os/clock.h"
#include "os/date_text.h"
#include "saver/countdown.h"
#include "settings/load_settings.h"

namespace saver {

class TimeDisplay {
 public:
  // `label` stands on a form that covers the screen. The settings are read from prepare() on.
  TimeDisplay(forms::Label& label, forms::Timer& timer, const settings::SaverSettings& settings,
              const os::Clock& clock, const os::DateText& dates);

  // Puts the label into its corner and starts the timer; without a clock or a countdown the label has no
  // size. Throws base::RunTimeError for a setting that is no number.
  void prepare();

  // Writes the text anew. Throws base::RunTimeError for a countdown to no date.
  void timeTimer_Timer();

  // The corner has moved by so many twips, and the label goes with it.
  void cornerMoved(float right, float down);

 private:
  std::string widestText() const;
  std::optional<Countdown> reading() const;

  forms::Label& label_;
  forms::Timer& timer_;
  const settings::SaverSettings& settings_;
  const os::Clock& clock_;
  const os::DateText& dates_;
};

}  // namespace saver
