// The calendar's reading of dates against the platform's own.
#include <windows.h>

#include <gtest/gtest.h>
#include <oleauto.h>

#include <optional>
#include <string>

#include "base/calendar.h"
#include "base/errors.h"

namespace base {
namespace {

std::optional<CalendarDay> ReadByPlatform(const std::string& text) {
  constexpr LCID kAmerican = 0x0409;
  std::wstring wide(text.begin(), text.end());
  DATE date = 0;
  if (FAILED(VarDateFromStr(wide.data(), kAmerican, LOCALE_NOUSEROVERRIDE, &date))) return std::nullopt;
  SYSTEMTIME time{};
  VariantTimeToSystemTime(date, &time);
  return CalendarDay{time.wYear, time.wMonth, time.wDay};
}

std::optional<CalendarDay> ReadByCalendar(const std::string& text) {
  try {
    return ParseMonthFirstDate(text);
  } catch (const TypeMismatch&) {
    return std::nullopt;
  }
}

TEST(MonthFirstDateOnThePlatform, IsReadAsTheDateConversionReadsIt) {
  // 30 to 49 as the last two digits of a year are left out: there the platform's versions differ.
  const int numbers[] = {0,  1,  2,  3,   4,   9,    11,   12,   13,   28,   29,
                         50, 75, 99, 100, 101, 1900, 2000, 2003, 2004, 9999, 10000};
  int dates = 0;
  for (const int first : {0, 1, 2, 4, 11, 12, 13, 28, 29, 31, 32, 99, 100, 2003, 2004, 10000}) {
    for (const int second : {0, 1, 2, 4, 11, 12, 13, 28, 29, 31, 32, 99, 100, 2003, 2004, 10000}) {
      for (const int third : numbers) {
        const std::string text =
            std::to_string(first) + '/' + std::to_string(second) + '/' + std::to_string(third);
        const std::optional<CalendarDay> expected = ReadByPlatform(text);
        if (first < 100 && second < 100 && expected && expected->year >= 2030 && expected->year <= 2049)
          continue;
        EXPECT_EQ(ReadByCalendar(text), expected) << text;
        dates += expected ? 1 : 0;
      }
    }
  }
  EXPECT_GT(dates, 1000);
}

TEST(MonthFirstDateOnThePlatform, MayCarryBlanksAndTheTimeOfMidnight) {
  for (const char* text :
       {"12/25/2027 12:00:00 AM", "  12 / 25 / 2027  ", "12/25/2027   12:00:00am ", "1/2/02003",
        "12/25/2027 x", "12/25/", "1/2/3/4", "-1/2/2003", "// 12:00:00 AM", "/25/2027"}) {
    EXPECT_EQ(ReadByCalendar(text), ReadByPlatform(text)) << text;
  }
}

}  // namespace
}  // namespace base
