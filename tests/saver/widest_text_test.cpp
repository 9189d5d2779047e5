#include "saver/widest_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "base/calendar.h"
#include "support/fake_date_text.h"

namespace saver {
namespace {

constexpr base::CalendarDay kCountedTo{2027, 12, 25};
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

class WidestCountdown : public testing::Test {
 protected:
  // Every character has a width of its own.
  static int widthOf(const std::string& text) {
    int width = 0;
    for (const char c : text) width += widths[static_cast<std::size_t>(static_cast<unsigned char>(c))];
    return width;
  }

  static int widestOfAll(const os::LocalTime& from) {
    // Second by second to the end, as the clock goes.
    int widest = 0;
    std::int32_t day = base::DayNumber({from.year, from.month, from.day});
    int second = from.hour * 3600 + from.minute * 60 + from.second;
    for (;; ++second) {
      if (second == 86400) {
        second = 0;
        ++day;
      }
      const base::CalendarDay today = base::DayOfNumber(day);
      const std::optional<Countdown> reading = ReadCountdown(
          {today.year, today.month, today.day, second / 3600, second / 60 % 60, second % 60, 0}, kCountedTo);
      if (!reading) return widest;
      widest = std::max(widest, widthOf(CountdownText(*reading)));
    }
  }

  static inline std::array<int, 256> widths;
};

TEST_F(WidestCountdown, IsAsWideAsTheWidestTextThatComes) {
  std::mt19937 engine(7);
  for (int i = 0; i < 20; ++i) {
    widths.fill(5);
    if (i % 2 == 0) {
      for (int& width : widths) width = std::uniform_int_distribution<int>(3, 9)(engine);
    }
    const int seconds = std::uniform_int_distribution<int>(1, i % 4 < 2 ? 7'000 : 30'000)(engine);
    const int start = 86400 - seconds;
    const os::LocalTime now{2027, 12, i == 10 ? 23 : 24, start / 3600, start / 60 % 60, start % 60, 0};
    const std::optional<Countdown> present = ReadCountdown(now, kCountedTo);
    EXPECT_EQ(widthOf(WidestCountdownText(*present, widthOf)), widestOfAll(now)) << CountdownText(*present);
  }
}

TEST_F(WidestCountdown, HasAsManyDigitsAsEverComeUp) {
  widths.fill(1);
  EXPECT_EQ(WidestCountdownText({100, 0, 0, 1}, widthOf).size(),
            std::string("99days  23hours  59minutes  60seconds  ").size());
  EXPECT_EQ(WidestCountdownText({100, 10, 0, 1}, widthOf).size(),
            std::string("100days  9hours  59minutes  60seconds  ").size());
  EXPECT_EQ(WidestCountdownText({-1, 23, 59, 60}, widthOf), "-1days  23hours  59minutes  60seconds  ");
}

TEST_F(WidestCountdown, ReachesFromOneSecondToSixty) {
  widths.fill(1);
  widths['6'] = widths['0'] = 50;
  EXPECT_TRUE(WidestCountdownText({5, 0, 0, 30}, widthOf).ends_with("  60seconds  "));
  EXPECT_TRUE(WidestCountdownText({0, 0, 0, 60}, widthOf).ends_with("  60seconds  "));
  EXPECT_EQ(WidestCountdownText({0, 0, 0, 6}, widthOf), "0days  0hours  0minutes  6seconds  ");
}

TEST_F(WidestCountdown, ThinksOfTheMinusAtItsEnd) {
  widths.fill(1);
  widths['-'] = 50;
  EXPECT_EQ(WidestCountdownText({1000, 3, 2, 1}, widthOf), "-1days  23hours  59minutes  60seconds  ");
}

TEST_F(WidestCountdown, MeasuresFewTexts) {
  widths.fill(6);
  int measured = 0;
  WidestCountdownText({24000, 3, 2, 1}, [&](const std::string& text) {
    ++measured;
    return widthOf(text);
  });
  EXPECT_LE(measured, 25);
}

}  // namespace
}  // namespace saver
