#include "saver/clock_text.h"

#include "base/calendar.h"

namespace saver {

namespace {

constexpr int kDaysAhead = 366;

// Tries moments and keeps the one with the widest text.
class WidestMoment {
 public:
  WidestMoment(const os::DateText& form, const TextWidth& widthOf, const os::LocalTime& first)
      : form_(form), widthOf_(widthOf), best_(first) {
    tryOut(first);
  }

  void tryOut(const os::LocalTime& moment) {
    const int width = widthOf_(os::GeneralDate(form_, moment));
    if (width <= width_) return;
    best_ = moment;
    width_ = width;
  }

  // Varies one unit of the best moment so far from 0 to `last`.
  void vary(int os::LocalTime::*unit, int last) {
    os::LocalTime moment = best_;
    for (moment.*unit = 0; moment.*unit <= last; ++(moment.*unit)) tryOut(moment);
  }

  const os::LocalTime& best() const { return best_; }

 private:
  const os::DateText& form_;
  const TextWidth& widthOf_;
  os::LocalTime best_;
  int width_ = -1;
};

}  // namespace

// Date, hour, minute and second each add their own width to the text, whatever the form, so each is varied
// alone. The day is varied as a whole: a form may spell out months and days of the week.
std::string WidestClockText(const os::DateText& form, const os::LocalTime& now, const TextWidth& widthOf) {
  WidestMoment widest(form, widthOf, {now.year, now.month, now.day, 23, 59, 59, 0});
  const std::int32_t today = base::DayNumber({now.year, now.month, now.day});
  for (int ahead = 1; ahead <= kDaysAhead; ++ahead) {
    const base::CalendarDay day = base::DayOfNumber(today + ahead);
    widest.tryOut({day.year, day.month, day.day, 23, 59, 59, 0});
  }
  widest.vary(&os::LocalTime::hour, 23);
  widest.vary(&os::LocalTime::minute, 59);
  widest.vary(&os::LocalTime::second, 59);
  return os::GeneralDate(form, widest.best());
}

}  // namespace saver
