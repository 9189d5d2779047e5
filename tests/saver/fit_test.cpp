#include "saver/fit.h"

#include <gtest/gtest.h>

#include <cmath>
#include "support/noise.h"

namespace saver {
namespace {

using base::PixelRect;
using base::PixelSize;
using support::Noise;

constexpr int kSizes = 100'000;

int SideUpTo(Noise& noise, int most) { return 1 + noise.upTo(most - 1); }

TEST(Fit, IsDocumentedUnlessItIsNamed) {
  EXPECT_EQ(ParseFit("whole"), Fit::Whole);
  EXPECT_EQ(ParseFit("Fill"), Fit::Fill);
  EXPECT_EQ(ParseFit(""), Fit::Documented);
  EXPECT_EQ(ParseFit("wholes"), Fit::Documented);
  EXPECT_EQ(ParseFit("1"), Fit::Documented);
}

TEST(Fit, AWholeLandscapePictureTakesItsShareOfTheWidth) {
  EXPECT_EQ(WholeSize({4000, 2000}, {1900, 1069}), (PixelSize{1900, 950}));
}

TEST(Fit, AWholePortraitPictureTakesItsShareOfTheHeight) {
  EXPECT_EQ(WholeSize({3000, 4000}, {1900, 1069}), (PixelSize{802, 1069}));
}

TEST(Fit, AWideScreenLimitsASquareByItsHeight) {
  EXPECT_EQ(WholeSize({3000, 3000}, {1900, 1069}), (PixelSize{1069, 1069}));
}

TEST(Fit, ASmallPictureIsEnlargedToTwiceItsSizeAtMost) {
  EXPECT_EQ(WholeSize({300, 200}, {1900, 1069}), (PixelSize{600, 400}));
  EXPECT_EQ(WholeSize({1000, 500}, {1900, 1069}), (PixelSize{1900, 950}));
}

TEST(Fit, APictureThatIsAlmostALineKeepsAPixel) {
  EXPECT_EQ(WholeSize({60000, 3}, {1900, 1069}), (PixelSize{1900, 1}));
}

TEST(Fit, AFillingPictureIsCutEvenly) {
  const FittedPicture fitted = FillSize({4000, 3000}, {1920, 1080}, {1900, 1069});
  EXPECT_EQ(fitted.drawn, (PixelSize{1920, 1440}));
  EXPECT_EQ(fitted.shown, (PixelRect{0, 180, 1920, 1080}));
}

TEST(Fit, AFillingPictureWiderThanTheScreenIsCutLeftAndRight) {
  const FittedPicture fitted = FillSize({3000, 1000}, {1000, 500}, {990, 495});
  EXPECT_EQ(fitted.drawn, (PixelSize{1500, 500}));
  EXPECT_EQ(fitted.shown, (PixelRect{250, 0, 1000, 500}));
}

TEST(Fit, TwoFifthsMayBeCutAwayAndNoMore) {
  // On a square screen a picture of 3 : 5 loses exactly two fifths.
  EXPECT_EQ(FillSize({600, 1000}, {900, 900}, {800, 800}).shown.size(), (PixelSize{900, 900}));
  EXPECT_EQ(FillSize({599, 1000}, {900, 900}, {800, 800}).drawn, (PixelSize{479, 800}));
  EXPECT_EQ(FillSize({1000, 600}, {900, 900}, {800, 800}).shown.size(), (PixelSize{900, 900}));
  EXPECT_EQ(FillSize({1000, 599}, {900, 900}, {800, 800}).drawn, (PixelSize{800, 479}));
}

TEST(Fit, AnUncutPictureIsShownWhole) {
  const FittedPicture fitted = FillSize({500, 2000}, {1920, 1080}, {1900, 1069});
  EXPECT_EQ(fitted.shown, PixelRect::ofSize(fitted.drawn));
  EXPECT_EQ(fitted, FitPicture(Fit::Whole, {500, 2000}, {1920, 1080}, {1900, 1069}));
}

// The scale in floating point, beside the products of whole numbers of the code.
TEST(Fit, AnyWholeSizeIsTheLargestThatLiesWithinTheShare) {
  Noise noise;
  for (int i = 0; i < kSizes; ++i) {
    const PixelSize picture{SideUpTo(noise, 20000), SideUpTo(noise, 20000)};
    const PixelSize share{SideUpTo(noise, 8000), SideUpTo(noise, 8000)};
    const PixelSize size = WholeSize(picture, share);
    const long double scale =
        std::fmin(2.0L, std::fmin(static_cast<long double>(share.width) / picture.width,
                                  static_cast<long double>(share.height) / picture.height));
    ASSERT_LE(size.width, share.width);
    ASSERT_LE(size.height, share.height);
    ASSERT_GE(size.width, 1);
    ASSERT_GE(size.height, 1);
    const auto near = [](int whole, long double exact) {
      return std::fabs(whole - exact) <= 0.5L + 1e-9L || (whole == 1 && exact < 1);
    };
    ASSERT_TRUE(near(size.width, picture.width * scale)) << picture.width << "x" << picture.height;
    ASSERT_TRUE(near(size.height, picture.height * scale)) << picture.width << "x" << picture.height;
  }
}

TEST(Fit, AnyFillingPictureCoversTheScreenOrWouldLoseMoreThanTwoFifths) {
  Noise noise;
  int filling = 0;
  for (int i = 0; i < kSizes; ++i) {
    const PixelSize picture{SideUpTo(noise, 20000), SideUpTo(noise, 20000)};
    const PixelSize screen{SideUpTo(noise, 8000), SideUpTo(noise, 8000)};
    const PixelSize share{SideUpTo(noise, screen.width), SideUpTo(noise, screen.height)};
    const FittedPicture fitted = FillSize(picture, screen, share);
    const long double scale = std::fmax(static_cast<long double>(screen.width) / picture.width,
                                        static_cast<long double>(screen.height) / picture.height);
    const long double seen =
        (screen.width / (picture.width * scale)) * (screen.height / (picture.height * scale));
    if (std::fabs(seen - 0.6L) < 1e-12L) continue;  // decided by whole numbers alone
    if (seen < 0.6L) {
      ASSERT_EQ(fitted, FitPicture(Fit::Whole, picture, screen, share));
      continue;
    }
    ++filling;
    ASSERT_EQ(fitted.shown.size(), screen);
    ASSERT_EQ(fitted.shown.left, (fitted.drawn.width - screen.width) / 2);
    ASSERT_EQ(fitted.shown.top, (fitted.drawn.height - screen.height) / 2);
    ASSERT_LE(fitted.shown.right(), fitted.drawn.width);
    ASSERT_LE(fitted.shown.bottom(), fitted.drawn.height);
    ASSERT_LE(std::fabs(fitted.drawn.width - picture.width * scale), 0.5L + 1e-9L);
    ASSERT_LE(std::fabs(fitted.drawn.height - picture.height * scale), 0.5L + 1e-9L);
  }
  EXPECT_GT(filling, kSizes / 5);
}

}  // namespace
}  // namespace saver
