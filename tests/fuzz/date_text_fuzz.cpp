// Dates out of any text, and any day as text and back.
//
// Input: one text; its first bytes are numbers as well.
#include <cstdlib>
#include <optional>
#include <string>

#include "base/calendar.h"
#include "base/errors.h"
#include "fuzz/input.h"
#include "fuzz/require.h"

namespace {

using base::CalendarDay;

std::optional<CalendarDay> Parse(std::string_view text) {
  try {
    return base::ParseMonthFirstDate(text);
  } catch (const base::TypeMismatch&) {
    return std::nullopt;
  }
}

bool IsLeap(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

bool Exists(const CalendarDay& day) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (day.year < 100 || day.year > 9999 || day.month < 1 || day.month > 12) return false;
  const int last = day.month == 2 && IsLeap(day.year) ? 29 : kDays[day.month - 1];
  return day.day >= 1 && day.day <= last;
}

std::string DateText(const CalendarDay& day) {
  return std::to_string(day.month) + '/' + std::to_string(day.day) + '/' + std::to_string(day.year);
}

void CheckText(std::string_view text) {
  const auto day = Parse(text);
  fuzz::Require(Parse(' ' + std::string(text) + ' ') == day, "blanks round a date mean nothing");
  if (!day) return;
  fuzz::Require(Exists(*day), "a date that is read exists");
  fuzz::Require(Parse(DateText(*day)) == day, "a date's text is read as the date");
  fuzz::Require(base::DayOfNumber(base::DayNumber(*day)) == *day, "a day has a number of its own");
}

void CheckDay(std::string_view bytes) {
  const auto raw = fuzz::FromBytes<std::uint32_t>(bytes);
  const CalendarDay day{static_cast<int>(raw & 0x3FFF), static_cast<int>(raw >> 14 & 0xF),
                        static_cast<int>(raw >> 18 & 0x3F)};
  fuzz::Require(base::IsValidDay(day) == Exists(day), "the calendar is the Gregorian one");
  const auto read = Parse(DateText(day) + " 12:00:00 AM");
  if (!Exists(day)) return;
  fuzz::Require(read == day, "a day that exists is read month first");
  CalendarDay next = day;
  ++next.day;
  if (Exists(next)) {
    fuzz::Require(base::DayNumber(next) == base::DayNumber(day) + 1, "days are counted one by one");
  }
}

// Three numbers that the text names, month first where that is a day.
void CheckThreeNumbers(std::string_view text) {
  int numbers[3] = {};
  std::string canonical;
  for (int i = 0; i < 3; ++i) {
    numbers[i] = static_cast<int>(static_cast<unsigned char>(
        text.size() > static_cast<std::size_t>(i) ? text[static_cast<std::size_t>(i)] : '\0'));
    canonical += (i ? " / " : "") + std::to_string(numbers[i]);
  }
  const CalendarDay monthFirst{numbers[2] < 50    ? numbers[2] + 2000
                               : numbers[2] < 100 ? numbers[2] + 1900
                                                  : numbers[2],
                               numbers[0], numbers[1]};
  const auto read = Parse(canonical);
  if (Exists(monthFirst)) fuzz::Require(read == monthFirst, "the month comes first where it can");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::Text(data, size);
  CheckText(text);
  CheckDay(text);
  CheckThreeNumbers(text);
  return 0;
}
