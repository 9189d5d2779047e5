#include "base/rounding.h"

#include <gtest/gtest.h>

#include "base/errors.h"
#include "base/random.h"
#include "base/twips.h"

TEST(Rounding, HalvesGoToTheEvenNeighbourOnBothSides) {
  EXPECT_EQ(base::RoundHalfToEven(0.5), 0);
  EXPECT_EQ(base::RoundHalfToEven(1.5), 2);
  EXPECT_EQ(base::RoundHalfToEven(2.5), 2);
  EXPECT_EQ(base::RoundHalfToEven(-2.5), -2);
  EXPECT_EQ(base::RoundHalfToEven(-1.5), -2);
  EXPECT_EQ(base::RoundHalfToEven(2.4), 2);
  EXPECT_EQ(base::RoundHalfToEven(-2.6), -3);
}

TEST(Rounding, RoundsBeforeItLooksAtTheRange) {
  EXPECT_EQ(base::ToInt16(32767.4), 32767);
  EXPECT_THROW(base::ToInt16(32767.5), base::Overflow);
  EXPECT_THROW(base::ToInt32(2147483647.5), base::Overflow);
  EXPECT_EQ(base::ToInt32(-2147483648.4), -2147483648);
}

TEST(Rounding, WholeDivisionRoundsItsOperandsAndTruncatesTheQuotient) {
  EXPECT_EQ(base::WholeDivide(7, 2), 3);
  EXPECT_EQ(base::WholeDivide(-7, 2), -3);
  EXPECT_EQ(base::WholeDivide(11.5, 2), 6);
  EXPECT_EQ(base::WholeDivide(10.5, 2), 5);
  EXPECT_THROW(base::WholeDivide(1, 0.4), base::Overflow);
  EXPECT_THROW(base::WholeDivide(3e9, 2), base::Overflow);
}

TEST(Rounding, AProductBeyond32BitsIsAnOverflow) {
  EXPECT_EQ(base::MultiplyInt32(46340, 46340), 2147395600);
  EXPECT_THROW(base::MultiplyInt32(46341, 46341), base::Overflow);
}

TEST(Twips, AreOneWholeNumberForEachResolution) {
  EXPECT_EQ(base::TwipsPerPixelForDpi(96), 15);
  EXPECT_EQ(base::TwipsPerPixelForDpi(120), 12);
  EXPECT_EQ(base::TwipsPerPixelForDpi(144), 10);
  EXPECT_EQ(base::TwipsPerPixelForDpi(192), 8);
}

TEST(Twips, APositionLiesInOnePixelOnBothSidesOfTheOrigin) {
  EXPECT_EQ(base::PixelAtTwips(2550, 15), 170);
  EXPECT_EQ(base::PixelAtTwips(2549, 15), 169);
  EXPECT_EQ(base::PixelAtTwips(-1, 15), -1);
  EXPECT_EQ(base::PixelAtTwips(-15, 15), -1);
  EXPECT_EQ(base::PixelAtTwips(-16, 15), -2);
}

TEST(Random, StartsWithTheKnownSequence) {
  base::Random random;
  EXPECT_FLOAT_EQ(random.next(), 0.7055475F);
  EXPECT_FLOAT_EQ(random.next(), 0.5334240F);
  EXPECT_FLOAT_EQ(random.next(), 0.5795186F);
  EXPECT_FLOAT_EQ(random.next(), 0.2895625F);
}

TEST(Random, TwoDrawsWithinOneTickOfTheClockDiffer) {
  base::Random random;
  random.reseed(43200.0F);
  const float first = random.next();
  random.reseed(43200.0F);
  EXPECT_NE(first, random.next());
}
