#include "saver/clock_text.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/calendar.h"
#include "support/fake_date_text.h"

namespace saver {
namespace {

constexpr os::LocalTime kNow{2026, 6, 5, 9, 3, 4, 0};

int CountLetters(const std::string& text) { return static_cast<int>(text.size()); }

// A form in which one month has a long name, and so has one day of the week.
class SpelledDates : public support::FakeDateText {
 public:
  std::string date(const os::LocalTime& t) const override {
    const bool wednesday = base::DayNumber({t.year, t.month, t.day}) % 7 == 6;
    return std::string(wednesday ? "Wednesday " : "Mon ") + (t.month == 9 ? "September " : "May ") +
           std::to_string(t.day) + ' ' + std::to_string(t.year);
  }
};

TEST(WidestClockText, HasTwoDigitsWhereTheyCanCome) {
  const std::string widest = WidestClockText(support::FakeDateText(), kNow, CountLetters);
  EXPECT_EQ(widest.size(), std::string("10/10/2026 10:00:00 AM").size());
}

TEST(WidestClockText, FindsTheLongestNamesTogether) {
  const std::string widest = WidestClockText(SpelledDates(), kNow, CountLetters);
  EXPECT_EQ(widest.size(), std::string("Wednesday September 10 2026 10:00:00 AM").size());
}

TEST(WidestClockText, PrefersWideDigits) {
  const auto width = [](const std::string& text) {
    return CountLetters(text) * 10 + static_cast<int>(std::ranges::count(text, '4') * 3) -
           static_cast<int>(std::ranges::count(text, '1'));
  };
  const std::string widest = WidestClockText(support::FakeDateText(), kNow, width);
  EXPECT_TRUE(widest.ends_with(":44:44 AM") || widest.ends_with(":44:44 PM")) << widest;
  // No moment of the coming year is wider.
  const int found = width(widest);
  for (int ahead = 0; ahead <= 366; ++ahead) {
    const base::CalendarDay day = base::DayOfNumber(base::DayNumber({2026, 6, 5}) + ahead);
    for (int second = 0; second < 86400; second += 4001) {
      const os::LocalTime moment{day.year,         day.month,   day.day, second / 3600,
                                 second / 60 % 60, second % 60, 0};
      ASSERT_LE(width(os::GeneralDate(support::FakeDateText(), moment)), found);
    }
  }
}

}  // namespace
}  // namespace saver
