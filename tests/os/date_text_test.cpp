#include "os/date_text.h"

#include <gtest/gtest.h>

#include "support/fake_date_text.h"

namespace os {
namespace {

TEST(GeneralDate, IsTheDateAndTheTimeWithABlankBetween) {
  EXPECT_EQ(GeneralDate(support::FakeDateText(), {2026, 6, 15, 13, 5, 9, 0}), "6/15/2026 1:05:09 PM");
  EXPECT_EQ(GeneralDate(support::FakeDateText(), {2026, 6, 15, 0, 0, 1, 0}), "6/15/2026 12:00:01 AM");
}

TEST(GeneralDate, LeavesTheTimeOutAtMidnight) {
  EXPECT_EQ(GeneralDate(support::FakeDateText(), {2026, 6, 15, 0, 0, 0, 999}), "6/15/2026");
}

}  // namespace
}  // namespace os
