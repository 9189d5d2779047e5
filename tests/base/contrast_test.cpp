#include "base/contrast.h"

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(Contrast, BlackAndWhiteAreFarthestApart) {
  EXPECT_NEAR(ContrastRatio(kBlack, kWhite), 21, 0.01);
  EXPECT_NEAR(ContrastRatio(kWhite, kBlack), 21, 0.01);
  EXPECT_NEAR(ContrastRatio(kWhite, kWhite), 1, 0.01);
}

TEST(Contrast, PureBlueStaysAsItIsOnLightPages) {
  for (const PackedColor page : {kWhite, Rgb(240, 240, 240), Rgb(249, 249, 249)}) {
    EXPECT_EQ(ReadableOn(kHighlight, page), kHighlight);
  }
}

TEST(Contrast, OnEveryPageTheColorCanBeRead) {
  for (int level = 0; level <= 255; ++level) {
    const PackedColor page = Rgb(level, level, level);
    EXPECT_GE(ContrastRatio(ReadableOn(kHighlight, page), page), kReadableContrast) << level;
  }
}

TEST(Contrast, ABlueOnBlackIsStillABlue) {
  const PackedColor blue = ReadableOn(kHighlight, kBlack);
  EXPECT_EQ(BlueOf(blue), 255);
  EXPECT_LT(RedOf(blue), 160);
}

TEST(Contrast, TextKeepsItsColorWhereItCanBeReadAndIsBlackOrWhiteElsewhere) {
  const PackedColor grey = Rgb(109, 109, 109);
  EXPECT_EQ(TextOn(kBlack, Rgb(227, 227, 227)), kBlack);
  EXPECT_EQ(TextOn(grey, kWhite), grey);
  EXPECT_EQ(TextOn(kWhite, kWhite), kBlack);
  EXPECT_EQ(TextOn(kWhite, Rgb(255, 255, 0)), kBlack);
  EXPECT_EQ(TextOn(kBlack, Rgb(0, 0, 128)), kWhite);
}

TEST(Contrast, AColorKeepsTheShareOfItsLightThatItIsTo) {
  const auto light = [](PackedColor color) { return ContrastRatio(color, kBlack) * 0.05 - 0.05; };
  for (const PackedColor color : {kWhite, Rgb(255, 255, 0), Rgb(200, 180, 220), Rgb(90, 90, 90)}) {
    EXPECT_NEAR(light(WithShareOfLight(color, 0.25)) / light(color), 0.25, 0.01);
    EXPECT_EQ(WithShareOfLight(color, 1), color);
    EXPECT_EQ(WithShareOfLight(color, 0), kBlack);
  }
}

}  // namespace
}  // namespace base
