#include "os/date_text.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace os {
namespace {

// What one of the user's regional settings is while the test runs.
class RegionalSetting {
 public:
  RegionalSetting(LCTYPE type, const wchar_t* value) : type_(type) {
    GetLocaleInfoW(LOCALE_USER_DEFAULT, type_, before_, 80);
    SetLocaleInfoW(LOCALE_USER_DEFAULT, type_, value);
  }
  ~RegionalSetting() { SetLocaleInfoW(LOCALE_USER_DEFAULT, type_, before_); }
  RegionalSetting(const RegionalSetting&) = delete;
  RegionalSetting& operator=(const RegionalSetting&) = delete;

 private:
  LCTYPE type_;
  wchar_t before_[80] = {};
};

TEST(WindowsDateText, FollowsTheUsersRegionalSettings) {
  const std::unique_ptr<DateText> form = MakeDateText();
  const LocalTime moment{2027, 2, 3, 14, 5, 9, 0};
  const RegionalSetting date(LOCALE_SSHORTDATE, L"dd.MM.yyyy");
  const RegionalSetting time(LOCALE_STIMEFORMAT, L"HH:mm:ss");
  EXPECT_EQ(form->date(moment), "03.02.2027");
  EXPECT_EQ(form->time(moment), "14:05:09");
  EXPECT_EQ(GeneralDate(*form, moment), "03.02.2027 14:05:09");
}

TEST(WindowsDateText, ShowsSecondsAndHalvesOfTheDay) {
  const std::unique_ptr<DateText> form = MakeDateText();
  const RegionalSetting date(LOCALE_SSHORTDATE, L"M/d/yyyy");
  const RegionalSetting time(LOCALE_STIMEFORMAT, L"h:mm:ss tt");
  const RegionalSetting morning(LOCALE_S1159, L"AM");
  const RegionalSetting evening(LOCALE_S2359, L"PM");
  EXPECT_EQ(GeneralDate(*form, {2026, 6, 15, 13, 5, 9, 0}), "6/15/2026 1:05:09 PM");
  EXPECT_EQ(GeneralDate(*form, {2026, 6, 15, 0, 0, 0, 0}), "6/15/2026");
}

TEST(WindowsDateText, KeepsTheDayInAFormThatSpellsItOut) {
  const RegionalSetting date(LOCALE_SSHORTDATE, L"d'. \x20ac' yyyy");  // letters beyond the ANSI range
  EXPECT_EQ(MakeDateText()->date({2026, 6, 5, 0, 0, 0, 0}), "5. \xE2\x82\xAC 2026");
}

TEST(WindowsDateText, LeavesTheSecondsOutWhereTheyAreNotWanted) {
  const std::unique_ptr<DateText> form = MakeDateText();
  const LocalTime moment{2027, 2, 3, 14, 5, 9, 0};
  {
    const RegionalSetting time(LOCALE_STIMEFORMAT, L"HH:mm:ss");
    EXPECT_EQ(form->timeToTheMinute(moment), "14:05");
  }
  const RegionalSetting time(LOCALE_STIMEFORMAT, L"h:mm:ss tt");
  const RegionalSetting evening(LOCALE_S2359, L"PM");
  EXPECT_EQ(form->timeToTheMinute(moment), "2:05 PM");
}

}  // namespace
}  // namespace os
