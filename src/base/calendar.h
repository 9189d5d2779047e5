// Calendar days, counted by the Gregorian calendar.
#pragma once

#include <cstdint>
#include <string_view>

namespace base {

struct CalendarDay {
  int year = 2000;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31

  bool operator==(const CalendarDay&) const = default;
};

// True for a day that exists, in a year from 100 to 9999, the range of the platform's dates.
bool IsValidDay(const CalendarDay& day);

// Days since 1 January 1970 (negative before it). The day must exist.
std::int32_t DayNumber(const CalendarDay& day);
CalendarDay DayOfNumber(std::int32_t number);

// The day that the text "month/day/year" names, month first in every locale. Where that is no date, the other
// orders are tried as the platform's date conversion (VarDateFromStr) tries them: "13/2/2003" is 13 February.
// A day that no order can give is refused, not rolled over: "2/30/2003". A year below 100 is taken into the
// century that ends in 2049 (the platform's pivot since Windows 10 1903). All three numbers must be there.
// Blanks may stand around each, and the time of midnight, " 12:00:00 AM", behind the date. Throws
// TypeMismatch for every other text.
CalendarDay ParseMonthFirstDate(std::string_view text);

}  // namespace base
