// The arithmetic of the countdown to midnight at the start of a day.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/calendar.h"
#include "os/clock.h"

namespace saver {

struct Countdown {
  std::int32_t days = 0;
  std::int32_t hours = 0;
  std::int32_t minutes = 0;
  std::int32_t seconds = 0;

  bool operator==(const Countdown&) const = default;
};

// What remains at `now`, or nothing once the target has passed. It is made of counts of unit boundaries
// between the two moments, so seconds run from 60 to 1 (a full minute shows as 60 seconds, with one minute
// fewer), and exactly at the target -1 days remain. Throws base::Overflow where a count, or the sum of the
// four, needs more than 32 bits (some 67 years).
std::optional<Countdown> ReadCountdown(const os::LocalTime& now, const base::CalendarDay& target);

// "hour" for exactly 1, else "hours"; minutes and seconds alike. Days have no singular.
std::string HourWord(std::int32_t hours);
std::string MinuteWord(std::int32_t minutes);
std::string SecondWord(std::int32_t seconds);

// For example "1days  13hours  29minutes  45seconds  ".
std::string CountdownText(const Countdown& reading);

}  // namespace saver
