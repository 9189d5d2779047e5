#include "saver/transitions/transition_time.h"

#include <gtest/gtest.h>

namespace saver {
namespace {

TEST(TransitionTime, IsTakenFromAHundredMillisecondsToFiveSeconds) {
  EXPECT_EQ(ParseTransitionTime("100"), 100);
  EXPECT_EQ(ParseTransitionTime("700"), 700);
  EXPECT_EQ(ParseTransitionTime(" 700 "), 700);
  EXPECT_EQ(ParseTransitionTime("5000"), 5000);
}

TEST(TransitionTime, OfAnyOtherTextLeavesTheLoopTight) {
  for (const char* text :
       {"", " ", "99", "5001", "0", "-700", "700 ms", "abc", "700.5", "7 00", "99999999999999"}) {
    EXPECT_EQ(ParseTransitionTime(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace saver
