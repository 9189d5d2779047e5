#include "saver/widest_text.h"

#include <array>
#include <utility>
#include <vector>

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

constexpr Countdown kAtTarget{-1, 23, 59, 60};

// The width of a number is the sum of its digits' widths, so days in their thousands need ten measurements.
class WidthTable {
 public:
  explicit WidthTable(const TextWidth& widthOf) {
    for (std::size_t digit = 0; digit < digits_.size(); ++digit)
      digits_[digit] = widthOf(std::to_string(digit));
    hour_ = pairOf(widthOf, HourWord);
    minute_ = pairOf(widthOf, MinuteWord);
    second_ = pairOf(widthOf, SecondWord);
  }

  std::int32_t widestDay(std::int32_t last) const { return widest(0, last, WordWidths{}); }
  std::int32_t widestHour(std::int32_t last) const { return widest(0, last, hour_); }
  std::int32_t widestMinute(std::int32_t last) const { return widest(0, last, minute_); }
  std::int32_t widestSecond(std::int32_t last) const { return widest(1, last, second_); }

 private:
  struct WordWidths {
    int singular = 0;
    int plural = 0;
  };

  static WordWidths pairOf(const TextWidth& widthOf, std::string (*word)(std::int32_t)) {
    return {widthOf(word(1)), widthOf(word(2))};
  }

  int widthOfNumber(std::int32_t number) const {
    int width = 0;
    do {
      width += digits_[static_cast<std::size_t>(number % 10)];
      number /= 10;
    } while (number > 0);
    return width;
  }

  // The number from `first` to `last` that is widest together with its word.
  std::int32_t widest(std::int32_t first, std::int32_t last, const WordWidths& word) const {
    std::int32_t best = first;
    int bestWidth = -1;
    for (std::int32_t number = first; number <= last; ++number) {
      const int width = widthOfNumber(number) + (number == 1 ? word.singular : word.plural);
      if (width <= bestWidth) continue;
      best = number;
      bestWidth = width;
    }
    return best;
  }

  std::array<int, 10> digits_{};
  WordWidths hour_;
  WordWidths minute_;
  WordWidths second_;
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

// A later reading is smaller in its days; or in its hours with the same days; and so on. Within each of these
// the other units take every value, so each has one widest reading.
std::string WidestCountdownText(const Countdown& present, const TextWidth& widthOf) {
  std::vector<Countdown> candidates{kAtTarget};
  if (present.days >= 0) {
    const WidthTable table(widthOf);
    const auto [d, h, m, s] = present;
    const std::int32_t hour = table.widestHour(23);
    const std::int32_t minute = table.widestMinute(59);
    const std::int32_t second = table.widestSecond(60);
    if (d > 0) candidates.push_back({table.widestDay(d - 1), hour, minute, second});
    if (h > 0) candidates.push_back({d, table.widestHour(h - 1), minute, second});
    if (m > 0) candidates.push_back({d, h, table.widestMinute(m - 1), second});
    candidates.push_back({d, h, m, table.widestSecond(s)});
  }
  std::string widest;
  int width = -1;
  for (const Countdown& candidate : candidates) {
    std::string text = CountdownText(candidate);
    const int candidateWidth = widthOf(text);
    if (candidateWidth <= width) continue;
    widest = std::move(text);
    width = candidateWidth;
  }
  return widest;
}

}  // namespace saver
