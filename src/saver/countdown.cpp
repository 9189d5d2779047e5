#include "saver/countdown.h"

#include <limits>

#include "base/errors.h"

namespace saver {

namespace {

std::int32_t To32Bits(std::int64_t value) {
  if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
    throw base::Overflow();
  }
  return static_cast<std::int32_t>(value);
}

std::int32_t Sum(std::int32_t a, std::int32_t b) { return To32Bits(static_cast<std::int64_t>(a) + b); }

std::string Word(const char* singular, std::int32_t count) {
  return count == 1 ? singular : std::string(singular) + 's';
}

}  // namespace

std::optional<Countdown> ReadCountdown(const os::LocalTime& now, const base::CalendarDay& target) {
  const std::int64_t wholeDays =
      static_cast<std::int64_t>(base::DayNumber(target)) - base::DayNumber({now.year, now.month, now.day});
  const std::int64_t wholeHours = wholeDays * 24 - now.hour;
  const std::int64_t wholeMinutes = wholeHours * 60 - now.minute;
  const std::int64_t wholeSeconds = wholeMinutes * 60 - now.second;
  const std::int32_t d = To32Bits(wholeDays);
  const std::int32_t h = To32Bits(wholeHours);
  const std::int32_t m = To32Bits(wholeMinutes);
  const std::int32_t s = To32Bits(wholeSeconds);
  if (Sum(Sum(Sum(d, h), m), s) < 0) return std::nullopt;
  Countdown reading;
  reading.days = d - 1;
  reading.hours = h - 24 * reading.days - 1;
  reading.minutes = m - 1440 * reading.days - 60 * reading.hours - 1;
  reading.seconds = s - 86400 * reading.days - 3600 * reading.hours - 60 * reading.minutes;
  return reading;
}

std::string HourWord(std::int32_t hours) { return Word("hour", hours); }

std::string MinuteWord(std::int32_t minutes) { return Word("minute", minutes); }

std::string SecondWord(std::int32_t seconds) { return Word("second", seconds); }

std::string CountdownText(const Countdown& reading) {
  return std::to_string(reading.days) + "days  " + std::to_string(reading.hours) + HourWord(reading.hours) +
         "  " + std::to_string(reading.minutes) + MinuteWord(reading.minutes) + "  " +
         std::to_string(reading.seconds) + SecondWord(reading.seconds) + "  ";
}

}  // namespace saver
