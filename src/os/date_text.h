// Dates and times as text, by the user's regional settings.
#pragma once

#include <memory>
#include <string>

#include "os/clock.h"

namespace os {

class DateText {
 public:
  virtual ~DateText() = default;

  // The short date, for example "6/15/2026".
  virtual std::string date(const LocalTime& moment) const = 0;

  // The time with seconds, for example "1:05:09 PM".
  virtual std::string time(const LocalTime& moment) const = 0;

  // The same without seconds, for example "1:05 PM".
  virtual std::string timeToTheMinute(const LocalTime& moment) const = 0;
};

// The general date form: the date, a blank, the time; the date alone at midnight.
std::string GeneralDate(const DateText& form, const LocalTime& moment);

// By the regional settings of this machine's user.
std::unique_ptr<DateText> MakeDateText();

}  // namespace os
