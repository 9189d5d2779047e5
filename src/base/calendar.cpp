#include "base/calendar.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "base/errors.h"
#include "base/text.h"

namespace base {

namespace {

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr int kLastShortYear = 49;  // two-digit years up to this one lie in the 2000s

std::chrono::year_month_day ToChrono(const CalendarDay& day) {
  return std::chrono::year{day.year} / std::chrono::month{static_cast<unsigned>(day.month)} /
         std::chrono::day{static_cast<unsigned>(day.day)};
}

// Takes the text of a date apart from its front.
class DateReader {
 public:
  explicit DateReader(std::string_view text) : rest_(text) {}

  int number() {
    skipBlanks();
    if (rest_.empty() || !IsDigit(rest_.front())) throw TypeMismatch();
    int value = 0;
    for (; !rest_.empty() && IsDigit(rest_.front()); rest_.remove_prefix(1)) {
      value = value * 10 + (rest_.front() - '0');
      if (value > kLastYear) throw TypeMismatch();
    }
    return value;
  }

  void slash() {
    if (!skip("/")) throw TypeMismatch();
  }

  void endOrMidnight() {
    if (skip("12:00:00") && !skip("am")) throw TypeMismatch();
    skipBlanks();
    if (!rest_.empty()) throw TypeMismatch();
  }

 private:
  void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size())); }

  // Skips blanks, then `word` in any case, and says whether it was there.
  bool skip(std::string_view word) {
    skipBlanks();
    if (!EqualAsciiBlind(rest_.substr(0, word.size()), word)) return false;
    rest_.remove_prefix(word.size());
    return true;
  }

  std::string_view rest_;
};

int WholeYear(int year) {
  if (year >= kFirstYear) return year;
  return year + (year <= kLastShortYear ? 2000 : 1900);
}

}  // namespace

bool IsValidDay(const CalendarDay& day) {
  // Small enough for the unsigned bytes in which std::chrono keeps months and days.
  if (day.month < 1 || day.month > 12 || day.day < 1 || day.day > 31) return false;
  return day.year >= kFirstYear && day.year <= kLastYear && ToChrono(day).ok();
}

std::int32_t DayNumber(const CalendarDay& day) {
  return static_cast<std::int32_t>(std::chrono::sys_days{ToChrono(day)}.time_since_epoch().count());
}

CalendarDay DayOfNumber(std::int32_t number) {
  const std::chrono::year_month_day day{std::chrono::sys_days{std::chrono::days{number}}};
  return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
          static_cast<int>(static_cast<unsigned>(day.day()))};
}

CalendarDay ParseMonthFirstDate(std::string_view text) {
  DateReader reader(text);
  const int first = reader.number();
  reader.slash();
  const int second = reader.number();
  reader.slash();
  const int third = reader.number();
  reader.endOrMidnight();
  const std::array<CalendarDay, 4> readings{{
      {WholeYear(third), first, second},
      {WholeYear(first), second, third},
      {WholeYear(third), second, first},
      {WholeYear(first), third, second},
  }};
  for (const CalendarDay& day : readings) {
    if (IsValidDay(day)) return day;
  }
  throw TypeMismatch();
}

}  // namespace base
