#include "settings/settings_file.h"

#include <gtest/gtest.h>

#include <string>

#include "support/windows_1252.h"

namespace settings {
namespace {

using support::kWestern;

std::string Repeated(const std::string& character, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += character;
  return text;
}

TEST(StoredLength, CountsBytesOfTheCodePageNotOfUtf8) {
  EXPECT_EQ(StoredLength("C:\\a.gif", kWestern), 8U);
  EXPECT_EQ(StoredLength("C:\\\xC3\xA9.gif", kWestern), 8U) << "one byte in the code page";
  EXPECT_EQ(StoredLength("\xE2\x82\xAC", kWestern), 1U);
  EXPECT_EQ(StoredLength("", kWestern), 0U);
}

TEST(StoredLength, CountsUtf16UnitsWhereACharacterHasNoPlaceInTheCodePage) {
  EXPECT_EQ(StoredLength("\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE", kWestern), 4U);
  EXPECT_EQ(StoredLength("\xF0\x9F\x8C\x84", kWestern), 2U) << "a pair of units";
}

TEST(FitsSettings, HoldsExactly254Characters) {
  EXPECT_TRUE(FitsSettings(std::string(254, 'x'), kWestern));
  EXPECT_FALSE(FitsSettings(std::string(255, 'x'), kWestern));
  EXPECT_TRUE(FitsSettings(Repeated("\xC3\xA9", 254), kWestern));
  EXPECT_FALSE(FitsSettings(Repeated("\xC3\xA9", 255), kWestern));
  EXPECT_TRUE(FitsSettings(Repeated("\xD0\xBB", 254), kWestern));
  EXPECT_FALSE(FitsSettings(Repeated("\xD0\xBB", 255), kWestern));
  EXPECT_TRUE(FitsSettings(Repeated("\xF0\x9F\x8C\x84", 127), kWestern));
  EXPECT_FALSE(FitsSettings(Repeated("\xF0\x9F\x8C\x84", 128), kWestern));
}

// A code page in which every character takes two bytes.
class TwoBytesEach : public os::AnsiCodePage {
 public:
  std::string decode(std::string_view ansi) const override { return std::string(ansi); }
  std::optional<std::string> encode(std::string_view utf8) const override {
    return std::string(utf8.size() * 2, 'x');
  }
};

TEST(StoredLength, CountsBothBytesOfACharacterThatTakesTwo) {
  EXPECT_EQ(StoredLength("abc", TwoBytesEach()), 6U);
}

}  // namespace
}  // namespace settings
