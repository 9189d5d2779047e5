#include "saver/countdown.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/errors.h"

namespace saver {
namespace {

using os::LocalTime;

constexpr base::CalendarDay kTarget{2027, 12, 25};

std::string TextAt(const LocalTime& now) {
  const std::optional<Countdown> reading = ReadCountdown(now, kTarget);
  return reading ? CountdownText(*reading) : "(passed)";
}

TEST(CountdownTest, ShowsWhatRemains) {
  EXPECT_EQ(TextAt({2027, 12, 23, 10, 30, 15, 0}), "1days  13hours  29minutes  45seconds  ");
  EXPECT_EQ(TextAt({2027, 12, 24, 22, 58, 59, 0}), "0days  1hour  1minute  1second  ");
  EXPECT_EQ(TextAt({2026, 12, 25, 0, 0, 1, 0}), "364days  23hours  59minutes  59seconds  ");
}

TEST(CountdownTest, ReadsOneSecondJustBeforeTheTarget) {
  EXPECT_EQ(TextAt({2027, 12, 24, 23, 59, 59, 0}), "0days  0hours  0minutes  1second  ");
  EXPECT_EQ(TextAt({2027, 12, 24, 23, 59, 59, 999}), "0days  0hours  0minutes  1second  ");
}

TEST(CountdownTest, IsAMinuteShortAndSixtySecondsLongOnAFullMinute) {
  EXPECT_EQ(TextAt({2027, 12, 24, 10, 30, 0, 0}), "0days  13hours  29minutes  60seconds  ");
  EXPECT_EQ(TextAt({2027, 12, 24, 0, 0, 0, 0}), "0days  23hours  59minutes  60seconds  ");
}

TEST(CountdownTest, ReadsMinusOneDayExactlyAtTheTarget) {
  EXPECT_EQ(TextAt({2027, 12, 25, 0, 0, 0, 0}), "-1days  23hours  59minutes  60seconds  ");
  EXPECT_EQ(TextAt({2027, 12, 25, 0, 0, 0, 999}), "-1days  23hours  59minutes  60seconds  ");
}

TEST(CountdownTest, IsOverFromTheFirstSecondAfterTheTarget) {
  EXPECT_EQ(TextAt({2027, 12, 25, 0, 0, 1, 0}), "(passed)");
  EXPECT_EQ(TextAt({2027, 12, 26, 0, 0, 0, 0}), "(passed)");
  EXPECT_EQ(TextAt({2030, 1, 1, 12, 0, 0, 0}), "(passed)");
}

TEST(CountdownTest, HasASingularForAllUnitsButDays) {
  EXPECT_EQ(CountdownText({1, 1, 1, 1}), "1days  1hour  1minute  1second  ");
  EXPECT_EQ(CountdownText({0, 0, 0, 0}), "0days  0hours  0minutes  0seconds  ");
  EXPECT_EQ(CountdownText({2, 2, 2, 2}), "2days  2hours  2minutes  2seconds  ");
}

TEST(CountdownTest, OverflowsBeyondWhat32BitsCount) {
  // 2147483647 seconds are 24855 days, 3 hours, 14 minutes and 7 seconds; the sum of the counts is full
  // earlier.
  EXPECT_THROW(ReadCountdown({1959, 12, 7, 0, 0, 0, 0}, kTarget), base::Overflow);
  EXPECT_THROW(ReadCountdown({1961, 1, 1, 0, 0, 0, 0}, {2027, 12, 25}), base::Overflow);
  EXPECT_NO_THROW(ReadCountdown({1962, 1, 1, 0, 0, 0, 0}, kTarget));
  EXPECT_THROW(ReadCountdown({2026, 1, 1, 0, 0, 0, 0}, {9999, 12, 31}), base::Overflow);
  EXPECT_THROW(ReadCountdown({2026, 1, 1, 0, 0, 0, 0}, {1900, 1, 1}), base::Overflow);
  EXPECT_EQ(ReadCountdown({2026, 1, 1, 0, 0, 0, 0}, {1970, 1, 1}), std::nullopt);
}

// The same by another road: days are counted year by year and month by month, boundaries as quotients of the
// seconds since a common start.
class Reckoning {
 public:
  static long long seconds(int year, int month, int day, int hour, int minute, int second) {
    static const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    long long days = 0;
    for (int y = 1900; y < year; ++y) days += leap(y) ? 366 : 365;
    for (int m = 1; m < month; ++m) days += lengths[m - 1] + (m == 2 && leap(year) ? 1 : 0);
    days += day - 1;
    return ((days * 24 + hour) * 60 + minute) * 60 + second;
  }

  static std::string text(long long now, long long target) {
    const auto boundaries = [&](long long unit) { return target / unit - now / unit; };
    const long long d = boundaries(86400);
    const long long h = boundaries(3600);
    const long long m = boundaries(60);
    const long long s = boundaries(1);
    if (d + h + m + s < 0) return "(passed)";
    const long long days = d - 1;
    const long long hours = h - 24 * days - 1;
    const long long minutes = m - 1440 * days - 60 * hours - 1;
    const long long seconds = s - 86400 * days - 3600 * hours - 60 * minutes;
    std::string text = std::to_string(days);
    text += "days  " + std::to_string(hours);
    text += hours == 1 ? "hour" : "hours";
    text += "  " + std::to_string(minutes);
    text += minutes == 1 ? "minute" : "minutes";
    text += "  " + std::to_string(seconds);
    text += seconds == 1 ? "second" : "seconds";
    return text + "  ";
  }

 private:
  static bool leap(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }
};

TEST(CountdownTest, AgreesWithAnIndependentCalculationOnRandomMoments) {
  std::mt19937 engine(20271225);
  const auto draw = [&engine](int first, int last) {
    return std::uniform_int_distribution<int>(first, last)(engine);
  };
  const auto day = [&draw](int firstYear, int lastYear) {
    base::CalendarDay drawn;
    do {
      drawn = {draw(firstYear, lastYear), draw(1, 12), draw(1, 31)};
    } while (!base::IsValidDay(drawn));
    return drawn;
  };
  int passed = 0;
  for (int i = 0; i < 200'000; ++i) {
    const base::CalendarDay target = day(2000, 2060);
    // Half of the moments lie within a month of the target, where its edges are.
    const base::CalendarDay today =
        i % 2 == 0 ? day(2000, 2060) : base::DayOfNumber(base::DayNumber(target) + draw(-30, 2));
    const bool fullMinute = draw(0, 9) == 0;
    const LocalTime now{today.year,  today.month, today.day,
                        draw(0, 23), draw(0, 59), fullMinute ? 0 : draw(0, 59),
                        draw(0, 999)};
    const std::string expected =
        Reckoning::text(Reckoning::seconds(now.year, now.month, now.day, now.hour, now.minute, now.second),
                        Reckoning::seconds(target.year, target.month, target.day, 0, 0, 0));
    const std::optional<Countdown> reading = ReadCountdown(now, target);
    ASSERT_EQ(reading ? CountdownText(*reading) : "(passed)", expected) << i;
    passed += reading ? 0 : 1;
  }
  EXPECT_GT(passed, 20'000);
  EXPECT_LT(passed, 180'000);
}

}  // namespace
}  // namespace saver
