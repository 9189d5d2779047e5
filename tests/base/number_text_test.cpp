#include "base/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "base/errors.h"

namespace {

using base::LeadingNumber;
using base::NumberText;
using base::Overflow;
using base::StrictBoolean;
using base::StrictDouble;
using base::StrictInt32;
using base::StrictSingle;
using base::TypeMismatch;

struct Reading {
  const char* text;
  double value;
};

class StrictForm : public testing::TestWithParam<Reading> {};

TEST_P(StrictForm, IsANumberForEveryType) {
  EXPECT_EQ(StrictDouble(GetParam().text), GetParam().value);
  EXPECT_EQ(StrictSingle(GetParam().text), static_cast<float>(GetParam().value));
  EXPECT_EQ(StrictInt32(GetParam().text), std::nearbyint(GetParam().value));
}

INSTANTIATE_TEST_SUITE_P(
    NumberText, StrictForm,
    testing::Values(Reading{" 12 ", 12}, Reading{"\t\r\n12\t\r\n", 12},
                    Reading{"\xC2\xA0"
                            "12\xC2\xA0",
                            12},
                    Reading{"+12", 12}, Reading{"- 12", -12}, Reading{"12-", -12}, Reading{"12 -", -12},
                    Reading{"(12)", -12}, Reading{"( 12 )", -12}, Reading{"$12", 12}, Reading{"12$", 12},
                    Reading{"-$12", -12}, Reading{"$-12", -12}, Reading{"+ $ 12", 12}, Reading{"($12)", -12},
                    Reading{"1,234", 1234}, Reading{"1,2,3", 123}, Reading{"12,", 12}, Reading{"12,.5", 12.5},
                    Reading{"1.", 1}, Reading{".5", 0.5}, Reading{"-.5", -0.5}, Reading{"1e3", 1000},
                    Reading{"1E+3", 1000}, Reading{"1d3", 1000}, Reading{"1D+3", 1000}, Reading{"25e-1", 2.5},
                    Reading{"1.e3", 1000}, Reading{"1e3-", -1000}, Reading{"&H10", 16}, Reading{"&h1f", 31},
                    Reading{"&O17", 15}, Reading{" &o17 ", 15}, Reading{"007", 7}, Reading{"-0", 0},
                    Reading{"1e-400", 0}, Reading{"0e99999", 0},
                    Reading{"0.0000000000000000000000000001", 1e-28}));

class RefusedForm : public testing::TestWithParam<std::string> {};

TEST_P(RefusedForm, IsATypeMismatchForEveryType) {
  EXPECT_THROW(StrictDouble(GetParam()), TypeMismatch);
  EXPECT_THROW(StrictSingle(GetParam()), TypeMismatch);
  EXPECT_THROW(StrictInt32(GetParam()), TypeMismatch);
}

INSTANTIATE_TEST_SUITE_P(NumberText, RefusedForm,
                         testing::Values("", " ", ".", ",12", "12abc", "12 34", "1e", "1e+", "1e3.5", "1 e3",
                                         "1e 3", "--12", "-12-", "1.5.5", "0x10", "&17", "&H", "&O8", "&H1.5",
                                         "&H10&", "12%", "12#", "True", "1/2/2003", "2003-04-05",
                                         "\xEF\xBC\x91\xEF\xBC\x92", "(12", "12)", "()", "-", "$", "$12$",
                                         ".e3", "1,5,x", "nan", "inf", "infinity", "0x1p3", "\xC2",
                                         std::string("12\0", 3), "1\xD9\xA0"));

TEST(StrictNumbers, ThePointIsTheDecimalSignAndTheCommaGroups) {
  EXPECT_EQ(StrictDouble("8.25"), 8.25);
  EXPECT_EQ(StrictDouble("8,25"), 825);
}

TEST(StrictNumbers, HexadecimalDigitsFillTheTypeThatReadsThem) {
  EXPECT_EQ(StrictInt32("&HFFFF"), 65535);
  EXPECT_EQ(StrictDouble("&HFFFF"), 65535);
  EXPECT_EQ(StrictInt32("&HFFFFFFFF"), -1);
  EXPECT_EQ(StrictInt32("&H80000000"), -2147483647 - 1);
  EXPECT_THROW(StrictInt32("&H100000000"), Overflow);
  EXPECT_THROW(StrictDouble("&H1000000000000000000000"), Overflow);
}

TEST(StrictNumbers, AreRoundedHalfToEvenBeforeTheirRangeIsLookedAt) {
  EXPECT_EQ(StrictInt32("0.5"), 0);
  EXPECT_EQ(StrictInt32("1.5"), 2);
  EXPECT_EQ(StrictInt32("-2.5"), -2);
  EXPECT_EQ(StrictInt32("2147483647.4"), 2147483647);
  EXPECT_THROW(StrictInt32("2147483647.5"), Overflow);
  EXPECT_EQ(StrictInt32("-2147483648"), -2147483647 - 1);
}

TEST(StrictNumbers, BeyondTheRangeOfARealAreAnOverflow) {
  EXPECT_THROW(StrictDouble("1e400"), Overflow);
  EXPECT_THROW(StrictDouble("-1e400"), Overflow);
  EXPECT_THROW(StrictDouble("1e99999999999999999999"), Overflow);
  EXPECT_THROW(StrictDouble(std::string(400, '9')), Overflow);
  EXPECT_EQ(StrictDouble("1e-99999999999999999999"), 0);
  EXPECT_EQ(StrictDouble("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(StrictDouble("0." + std::string(400, '0') + "1e401"), 1);
  EXPECT_EQ(StrictDouble("1e39"), 1e39);
  EXPECT_THROW(StrictSingle("1e39"), Overflow);
}

TEST(StrictNumbers, ABooleanIsAWordOrANumber) {
  EXPECT_TRUE(StrictBoolean("True"));
  EXPECT_TRUE(StrictBoolean("tRUE"));
  EXPECT_FALSE(StrictBoolean("False"));
  EXPECT_TRUE(StrictBoolean("-1"));
  EXPECT_TRUE(StrictBoolean("0.5"));
  EXPECT_FALSE(StrictBoolean("0"));
  EXPECT_THROW(StrictBoolean(""), TypeMismatch);
  EXPECT_THROW(StrictBoolean("yes"), TypeMismatch);
  EXPECT_THROW(StrictBoolean(" True "), TypeMismatch);
  EXPECT_THROW(StrictBoolean("1e400"), Overflow);
}

TEST(LenientNumbers, ReadUntilTheFirstUnusableCharacter) {
  EXPECT_EQ(LeadingNumber("1234 Main"), 1234);
  EXPECT_EQ(LeadingNumber(" 2 45 7"), 2457);
  EXPECT_EQ(LeadingNumber("12  3.4  5.6"), 123.45);
  EXPECT_EQ(LeadingNumber("\t1\n2"), 12);
  EXPECT_EQ(LeadingNumber("1,234"), 1);
  EXPECT_EQ(LeadingNumber("$12"), 0);
  EXPECT_EQ(LeadingNumber("- 12"), -12);
  EXPECT_EQ(LeadingNumber("+7x"), 7);
  EXPECT_EQ(LeadingNumber(".5"), 0.5);
  EXPECT_EQ(LeadingNumber("5."), 5);
  EXPECT_EQ(LeadingNumber("50.5%"), 50.5);
  EXPECT_EQ(LeadingNumber("12\r3"), 12);
}

TEST(LenientNumbers, NothingUsableIsZero) {
  for (const char* text : {"", " ", "abc", "-", "+", ".", "--1", "e5", "&", "&H", "&O9", "\xFF\xFE"}) {
    EXPECT_EQ(LeadingNumber(text), 0) << text;
    EXPECT_FALSE(std::signbit(LeadingNumber(text))) << text;
  }
}

TEST(LenientNumbers, AnExponentNeedsItsDigits) {
  EXPECT_EQ(LeadingNumber("1e3"), 1000);
  EXPECT_EQ(LeadingNumber("1D-2"), 0.01);
  EXPECT_EQ(LeadingNumber("1e"), 1);
  EXPECT_EQ(LeadingNumber("1e+"), 1);
  EXPECT_EQ(LeadingNumber("12else"), 12);
}

TEST(LenientNumbers, HexadecimalOnesAre16BitsWideUntilTheyNeed32) {
  EXPECT_EQ(LeadingNumber("&H10"), 16);
  EXPECT_EQ(LeadingNumber("&hfg"), 15);
  EXPECT_EQ(LeadingNumber("&O17"), 15);
  EXPECT_EQ(LeadingNumber("&HFFFF"), -1);
  EXPECT_EQ(LeadingNumber("&HFFFF&"), 65535);
  EXPECT_EQ(LeadingNumber("&H10000"), 65536);
  EXPECT_EQ(LeadingNumber("&HFFFFFFFF"), -1);
  EXPECT_EQ(LeadingNumber("&H1FFFFFFFFF"), -1);
}

TEST(LenientNumbers, BeyondADoubleGiveTheLargest) {
  EXPECT_EQ(LeadingNumber("1e400"), std::numeric_limits<double>::max());
  EXPECT_EQ(LeadingNumber("-1e400"), -std::numeric_limits<double>::max());
  EXPECT_EQ(LeadingNumber(std::string(500, '7')), std::numeric_limits<double>::max());
  EXPECT_EQ(LeadingNumber("1e-400"), 0);
}

TEST(LenientNumbers, OfThePasswordFlag) {
  EXPECT_EQ(base::LenientInt16("1"), 1);
  EXPECT_EQ(base::LenientInt16("001"), 1);
  EXPECT_EQ(base::LenientInt16(" 1"), 1);
  EXPECT_EQ(base::LenientInt16(""), 0);
  EXPECT_EQ(base::LenientInt16("on"), 0);
  EXPECT_EQ(base::LenientInt16("2.5"), 2);
  EXPECT_EQ(base::LenientInt16("65536"), 32767);
  EXPECT_EQ(base::LenientInt16("-99999"), -32768);
  EXPECT_EQ(base::LenientInt16("1e400"), 32767);
}

TEST(LenientNumbers, OfAWindowHandleKeepAll32Bits) {
  EXPECT_EQ(base::LenientInt32("1234"), 1234);
  EXPECT_EQ(base::LenientInt32("   1234"), 1234);
  EXPECT_EQ(base::LenientInt32(""), 0);
  EXPECT_EQ(base::LenientInt32("4294967295"), -1);
  EXPECT_EQ(base::LenientInt32("2147483648"), -2147483647 - 1);
  EXPECT_EQ(base::LenientInt32("4294967296"), 2147483647);
  EXPECT_EQ(base::LenientInt32("-3000000000"), -2147483647 - 1);
  EXPECT_EQ(base::LenientInt32("-1e400"), -2147483647 - 1);
}

TEST(NumbersAsText, OfWholeNumbersAreTheirDigits) {
  EXPECT_EQ(NumberText(0), "0");
  EXPECT_EQ(NumberText(-2147483647 - 1), "-2147483648");
}

TEST(NumbersAsText, OfDoublesHaveAtMost15Digits) {
  EXPECT_EQ(NumberText(12.0), "12");
  EXPECT_EQ(NumberText(8.25), "8.25");
  EXPECT_EQ(NumberText(1e15), "1E+15");
  EXPECT_EQ(NumberText(1e14), "100000000000000");
  EXPECT_EQ(NumberText(1e-5), "1E-05");
  EXPECT_EQ(NumberText(1e-4), "0.0001");
  EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(NumberText(-1e-7), "-1E-07");
  EXPECT_EQ(NumberText(1e300), "1E+300");
  EXPECT_EQ(NumberText(0.1), "0.1");
  EXPECT_EQ(NumberText(-0.0), "0");
  EXPECT_EQ(NumberText(7.5), "7.5");
}

TEST(NumbersAsText, OfSinglesHaveAtMost7Digits) {
  EXPECT_EQ(NumberText(12.0F), "12");
  EXPECT_EQ(NumberText(8.25F), "8.25");
  EXPECT_EQ(NumberText(1.0F / 3), "0.3333333");
  EXPECT_EQ(NumberText(123456789.0F), "1.234568E+08");
  EXPECT_EQ(NumberText(0.1F), "0.1");
}

}  // namespace
