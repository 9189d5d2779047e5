#include "base/calendar.h"

#include <gtest/gtest.h>

#include "base/errors.h"

namespace base {
namespace {

TEST(Calendar, KnowsWhichDaysExist) {
  EXPECT_TRUE(IsValidDay({2004, 2, 29}));
  EXPECT_FALSE(IsValidDay({2003, 2, 29}));
  EXPECT_TRUE(IsValidDay({2000, 2, 29}));
  EXPECT_FALSE(IsValidDay({1900, 2, 29}));
  EXPECT_FALSE(IsValidDay({2003, 4, 31}));
  EXPECT_TRUE(IsValidDay({2003, 12, 31}));
  EXPECT_FALSE(IsValidDay({2003, 0, 1}));
  EXPECT_FALSE(IsValidDay({2003, 13, 1}));
  EXPECT_FALSE(IsValidDay({2003, 1, 0}));
  EXPECT_FALSE(IsValidDay({2003, 257, 257}));
}

TEST(Calendar, HasTheYearsOfThePlatformsDates) {
  EXPECT_FALSE(IsValidDay({99, 12, 31}));
  EXPECT_TRUE(IsValidDay({100, 1, 1}));
  EXPECT_TRUE(IsValidDay({9999, 12, 31}));
  EXPECT_FALSE(IsValidDay({10000, 1, 1}));
}

TEST(Calendar, NumbersItsDaysWithoutAGap) {
  EXPECT_EQ(DayNumber({1970, 1, 1}), 0);
  EXPECT_EQ(DayNumber({1969, 12, 31}), -1);
  EXPECT_EQ(DayNumber({2000, 3, 1}) - DayNumber({2000, 2, 28}), 2);
  EXPECT_EQ(DayNumber({1900, 3, 1}) - DayNumber({1900, 2, 28}), 1);
  int number = DayNumber({100, 1, 1});
  for (int year = 100; year <= 9999; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; IsValidDay({year, month, day}); ++day, ++number) {
        const CalendarDay expected{year, month, day};
        ASSERT_EQ(DayNumber(expected), number);
        ASSERT_EQ(DayOfNumber(number), expected);
      }
    }
  }
}

TEST(MonthFirstDate, ReadsTheMonthFirst) {
  EXPECT_EQ(ParseMonthFirstDate("1/2/2003"), (CalendarDay{2003, 1, 2}));
  EXPECT_EQ(ParseMonthFirstDate("02/29/2004"), (CalendarDay{2004, 2, 29}));
  EXPECT_EQ(ParseMonthFirstDate("12/31/9999"), (CalendarDay{9999, 12, 31}));
  EXPECT_EQ(ParseMonthFirstDate("12/31/100"), (CalendarDay{100, 12, 31}));
  EXPECT_EQ(ParseMonthFirstDate("001/02/02003"), (CalendarDay{2003, 1, 2}));
}

TEST(MonthFirstDate, SwapsWhatCannotBeAMonth) {
  EXPECT_EQ(ParseMonthFirstDate("13/2/2003"), (CalendarDay{2003, 2, 13}));
  EXPECT_EQ(ParseMonthFirstDate("31/12/2003"), (CalendarDay{2003, 12, 31}));
  EXPECT_EQ(ParseMonthFirstDate("2003/2/13"), (CalendarDay{2003, 2, 13}));
  EXPECT_EQ(ParseMonthFirstDate("2003/13/2"), (CalendarDay{2003, 2, 13}));
}

TEST(MonthFirstDate, RefusesDaysThatDoNotExist) {
  for (const char* text : {"2/30/2003", "4/31/2003", "2/29/2003", "11/31/2003", "31/4/2003", "13/13/2003",
                           "0/1/2003", "1/0/2003", "1/32/2003", "13/2003/2", "2/2003/13", "1/1/10000"}) {
    EXPECT_THROW(ParseMonthFirstDate(text), TypeMismatch) << text;
  }
}

TEST(MonthFirstDate, TakesShortYearsIntoTheCenturyThatEndsIn2049) {
  EXPECT_EQ(ParseMonthFirstDate("1/2/0"), (CalendarDay{2000, 1, 2}));
  EXPECT_EQ(ParseMonthFirstDate("1/2/30"), (CalendarDay{2030, 1, 2}));
  EXPECT_EQ(ParseMonthFirstDate("1/2/49"), (CalendarDay{2049, 1, 2}));
  EXPECT_EQ(ParseMonthFirstDate("1/2/50"), (CalendarDay{1950, 1, 2}));
  EXPECT_EQ(ParseMonthFirstDate("12/31/99"), (CalendarDay{1999, 12, 31}));
}

TEST(MonthFirstDate, WithAShortYearTriesTheOtherOrdersToo) {
  EXPECT_EQ(ParseMonthFirstDate("13/2/03"), (CalendarDay{2013, 2, 3}));
  EXPECT_EQ(ParseMonthFirstDate("4/31/03"), (CalendarDay{2004, 3, 31}));
  EXPECT_EQ(ParseMonthFirstDate("32/13/3"), (CalendarDay{2032, 3, 13}));
  EXPECT_THROW(ParseMonthFirstDate("2/29/30"), TypeMismatch);
}

TEST(MonthFirstDate, MayHaveBlanksAroundItsParts) {
  EXPECT_EQ(ParseMonthFirstDate("  12 / 25 / 2027  "), (CalendarDay{2027, 12, 25}));
}

TEST(MonthFirstDate, MayBeFollowedByTheTimeOfMidnight) {
  EXPECT_EQ(ParseMonthFirstDate("12/25/2027 12:00:00 AM"), (CalendarDay{2027, 12, 25}));
  EXPECT_EQ(ParseMonthFirstDate("12/25/2027   12:00:00am "), (CalendarDay{2027, 12, 25}));
  for (const char* text : {"12/25/2027 12:00:00 PM", "12/25/2027 12:00:00", "12/25/2027 5:00 PM 12:00:00 AM",
                           "12/25/2027 12:00:00 AM x", "12:00:00 AM", " 12:00:00 AM"}) {
    EXPECT_THROW(ParseMonthFirstDate(text), TypeMismatch) << text;
  }
}

TEST(MonthFirstDate, RefusesTextThatIsNoDate) {
  for (const char* text :
       {"", " ", "/", "//", "// 12:00:00 AM", "12//2027", "/25/2027", "12/25/", "12/25", "1/2/3/4", "x",
        "12/25/2027x", "-1/2/2003", "1/2/-2003", "1.0/2/2003", "1/2/99999999999999999999"}) {
    EXPECT_THROW(ParseMonthFirstDate(text), TypeMismatch) << text;
  }
}

}  // namespace
}  // namespace base
