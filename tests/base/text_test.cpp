#include "base/text.h"

#include <gtest/gtest.h>

namespace {

TEST(Utf8, TurnsIntoUtf16AndBack) {
  const std::string utf8 = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8C\x99";
  const std::u16string utf16 = u"a\u00E9\u20AC\U0001F319";
  EXPECT_EQ(base::Utf16FromUtf8(utf8), utf16);
  EXPECT_EQ(base::Utf8FromUtf16(utf16), utf8);
}

TEST(Utf8, ABrokenByteBecomesTheReplacementCharacterAndCostsNoOther) {
  EXPECT_EQ(base::Utf16FromUtf8("a\xFFz"), u"a\uFFFDz");
  EXPECT_EQ(base::Utf16FromUtf8("\xC3z"), u"\uFFFDz");
  EXPECT_EQ(base::Utf16FromUtf8("\xE2\x82"), u"\uFFFD\uFFFD");
  EXPECT_EQ(base::Utf16FromUtf8("\x80"), u"\uFFFD");
}

TEST(Utf8, LongerFormsThanNeededAndCodesBeyondTheLastCharacterAreBroken) {
  EXPECT_EQ(base::Utf16FromUtf8("\xC0\xAF"), u"\uFFFD\uFFFD");
  EXPECT_EQ(base::Utf16FromUtf8("\xE0\x80\xAF"), u"\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(base::Utf16FromUtf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(Utf8, EveryUtf16TextSurvivesEvenALoneHalfOfAPair) {
  const std::u16string lone{u'a', static_cast<char16_t>(0xDC80), u'b', static_cast<char16_t>(0xD83C)};
  EXPECT_EQ(base::Utf16FromUtf8(base::Utf8FromUtf16(lone)), lone);
}

TEST(Utf8, TellsTheLengthOfEachCharacter) {
  EXPECT_EQ(base::Utf8CharacterAt("\xF0\x9F\x8C\x99", 0).length, 4U);
  EXPECT_EQ(base::Utf8CharacterAt("\xF0\x9F\x8C\x99", 0).value, U'\U0001F319');
  EXPECT_FALSE(base::Utf8CharacterAt("\xF0\x9F\x8C\x99", 1).valid);
}

TEST(AsciiLetters, AreEqualInBothCasesAndOthersAreNot) {
  EXPECT_TRUE(base::EqualAsciiBlind("bLeftWipe", "BLEFTWIPE"));
  EXPECT_FALSE(base::EqualAsciiBlind("total", "total "));
  EXPECT_FALSE(base::EqualAsciiBlind("\xC3\xA9", "\xC3\x89"));
  EXPECT_FALSE(base::EqualAsciiBlind("[", "{"));
  EXPECT_EQ(base::AsciiUpper("/p 1z\xC3\xA9"), "/P 1Z\xC3\xA9");
  EXPECT_EQ(base::AsciiLower("@AZ[\xC3\x89"), "@az[\xC3\x89");
}

TEST(Blanks, AreSpacesAlone) {
  EXPECT_EQ(base::TrimBlanks("  /S  "), "/S");
  EXPECT_EQ(base::TrimBlanks("\t/S "), "\t/S");
  EXPECT_EQ(base::TrimBlanks("   "), "");
  EXPECT_EQ(base::TrimBlanks(""), "");
  EXPECT_EQ(base::TrimBlanks("\t a b\v ", " \t\v"), "a b");
}

}  // namespace
