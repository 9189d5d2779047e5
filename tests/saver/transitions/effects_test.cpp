#include "saver/transitions/effects.h"

#include <gtest/gtest.h>

#include <set>

namespace saver {
namespace {

TEST(Effects, StandInTheOrderOfTheirFlagsInTheFile) {
  settings::SettingsRecord record;
  record.bStandard = "0";
  record.bLeftWipe = "1";
  record.bRightWipe = "2";
  record.bRightandLeftWipe = "3";
  record.bUpAndDown = "4";
  record.bCenter = "5";
  record.bHorizontalBlinds = "6";
  record.bVerticalBlinds = "7";
  record.bFade = "8";
  for (int number = 0; number < kEffectCount; ++number) {
    EXPECT_EQ(record.*EffectNumbered(number).flag, std::to_string(number));
  }
}

TEST(Effects, OnlyThePlainShowHasNoSteps) {
  EXPECT_TRUE(EffectNumbered(kPlainShow).isPlainShow());
  for (int number = 1; number < kEffectCount; ++number) EXPECT_FALSE(EffectNumbered(number).isPlainShow());
}

TEST(Effects, HaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (int number = 0; number < kEffectCount; ++number) names.insert(EffectNumbered(number).name);
  EXPECT_EQ(names.size(), static_cast<std::size_t>(kEffectCount));
}

}  // namespace
}  // namespace saver
