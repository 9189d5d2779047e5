#include "saver/time_display.h"

#include "base/calendar.h"
#include "base/errors.h"
#include "base/number_text.h"
#include "forms/form.h"
#include "saver/widest_text.h"

namespace saver {

namespace {

constexpr int kIntervalMs = 100;

// The numbers of the setting `timeDisplay`; any other shows nothing.
constexpr std::int32_t kClock = 1;
constexpr std::int32_t kCountdown = 2;

}  // namespace

TimeDisplay::TimeDisplay(forms::Label& label, forms::Timer& timer, const settings::SaverSettings& settings,
                         const os::Clock& clock, const os::DateText& dates)
    : label_(label), timer_(timer), settings_(settings), clock_(clock), dates_(dates) {}

void TimeDisplay::prepare() {
  const std::int32_t display = base::StrictInt32(settings_.record.timeDisplay);
  if (display != kClock && display != kCountdown) {
    label_.setVisible(false);
    label_.setWidth(0);
    label_.setHeight(0);
    timer_.setEnabled(false);
    return;
  }
  // The place is set once, so it is measured with the widest text that can come.
  label_.setCaption(widestText());
  label_.setLeft(label_.form().width - label_.width());
  label_.setTop(label_.form().height - label_.height());
  label_.setCaption("");
  label_.setForeColor(base::StrictInt32(settings_.record.newFontForeColor));
  label_.setVisible(true);
  timer_.setInterval(kIntervalMs);
  timer_.setEnabled(true);
}

std::string TimeDisplay::widestText() const {
  const auto widthOf = [this](const std::string& text) {
    return label_.form().host()->measureText(label_.font(), text).width;
  };
  if (base::StrictInt32(settings_.record.timeDisplay) == kClock)
    return WidestClockText(dates_, clock_.now(), widthOf);
  try {
    const std::optional<Countdown> present = reading();
    return present ? WidestCountdownText(*present, widthOf) : std::string();
  } catch (const base::RunTimeError&) {
    return {};  // the first tick meets the error again, and ends the show
  }
}

std::optional<Countdown> TimeDisplay::reading() const {
  return ReadCountdown(clock_.now(), base::ParseMonthFirstDate(settings_.countdownTarget));
}

void TimeDisplay::timeTimer_Timer() {
  if (base::StrictInt32(settings_.record.timeDisplay) == kClock) {
    label_.setCaption(os::GeneralDate(dates_, clock_.now()));
    return;
  }
  if (const std::optional<Countdown> present = reading()) {
    label_.setCaption(CountdownText(*present));
  } else {
    timer_.setEnabled(false);  // the target has passed; the last text stays
  }
}

void TimeDisplay::cornerMoved(float right, float down) {
  label_.setLeft(label_.left() + right);
  label_.setTop(label_.top() + down);
}

}  // namespace saver
