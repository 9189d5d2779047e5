#include "saver/picture_size.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "base/errors.h"
#include "base/rounding.h"
#include "base/twips.h"

namespace saver {
namespace {

constexpr float kScale = 0.99F;

struct Pixels {
  int width;
  int height;
  bool operator==(const Pixels&) const = default;
};

PictureLimit LimitOf(Pixels screen, float scale, int twipsPerPixel = 15) {
  return PictureLimit::of(static_cast<float>(screen.width * twipsPerPixel),
                          static_cast<float>(screen.height * twipsPerPixel), scale);
}

// The shown size in pixels of a picture given in pixels, with the reduction that it needs.
Pixels Shown(Pixels screen, Pixels picture, float scale = kScale, int twipsPerPixel = 15) {
  const PictureLimit limit = LimitOf(screen, scale, twipsPerPixel);
  const int width = picture.width * twipsPerPixel;
  const int height = picture.height * twipsPerPixel;
  const ShownSize shown = ScalePictureSize(limit, {width, height, ReductionFor(limit, width, height)});
  return {base::TwipsToPixels(shown.width, twipsPerPixel), base::TwipsToPixels(shown.height, twipsPerPixel)};
}

int Reduction(Pixels screen, Pixels picture, float scale = kScale) {
  return ReductionFor(LimitOf(screen, scale), picture.width * 15, picture.height * 15);
}

TEST(PictureSize, OfALandscapeBelowTheWidthLimitStaysHoweverHigh) {
  EXPECT_EQ(Shown({1024, 768}, {1000, 900}), (Pixels{1000, 900}));
}

TEST(PictureSize, OfAPortraitAboveTheHeightLimitIsShrunk) {
  EXPECT_EQ(Shown({1024, 768}, {900, 1000}), (Pixels{684, 760}));
  EXPECT_EQ(ScalePictureSize(LimitOf({1024, 768}, kScale), {13500, 15000}), (ShownSize{10264, 11405}));
}

TEST(PictureSize, OfAShrunkPortraitIsNotTestedByItsWidth) {
  EXPECT_EQ(Shown({300, 2000}, {1900, 2100}), (Pixels{1791, 1980}));
}

TEST(PictureSize, OfASquareIsTestedByItsWidth) {
  EXPECT_EQ(Shown({1024, 768}, {900, 900}), (Pixels{900, 900}));
  EXPECT_EQ(Shown({768, 1024}, {900, 900}), (Pixels{760, 760}));
}

TEST(PictureSize, IsNeverLessThanAPixelOnASide) {
  const PictureLimit limit{15000, 9000};
  EXPECT_EQ(ScalePictureSize(limit, {.width = 15, .height = 75000, .pixelTwips = 15}), (ShownSize{15, 9000}));
  EXPECT_EQ(ScalePictureSize(limit, {.width = 75000, .height = 15, .pixelTwips = 15}),
            (ShownSize{15000, 15}));
  for (const int nothing : {0, -100}) {
    const PictureLimit none{nothing, nothing};
    EXPECT_EQ(ScalePictureSize(none, {.width = 3000, .height = 1500, .pixelTwips = 12}), (ShownSize{12, 12}));
    EXPECT_EQ(ScalePictureSize(none, {.width = 15, .height = 30, .pixelTwips = 15}), (ShownSize{15, 15}));
  }
}

TEST(PictureSize, OfNoPictureIsNothingWhateverTheLimit) {
  for (const int limit : {-5, 0, 1, 15000}) {
    EXPECT_EQ(ScalePictureSize({limit, limit}, {.pixelTwips = 15}), ShownSize{});
  }
}

TEST(PictureSize, EqualToTheLimitIsRedrawnAtTheSameSize) {
  const PictureLimit limit{15000, 9000};
  EXPECT_EQ(ScalePictureSize(limit, {15000, 6000}), (ShownSize{15000, 6000}));
  EXPECT_EQ(ScalePictureSize(limit, {6000, 9000}), (ShownSize{6000, 9000}));
  // Seen in the product, which the redrawn size needs and a kept size does not.
  EXPECT_THROW(ScalePictureSize({60000, 60000}, {60000, 50000}), base::Overflow);
  EXPECT_NO_THROW(ScalePictureSize({60001, 60001}, {60000, 50000}));
}

TEST(PictureSize, RoundsHalvesToTheEvenNumber) {
  EXPECT_EQ(ScalePictureSize({10, 10}, {20, 5}), (ShownSize{10, 2}));
  EXPECT_EQ(ScalePictureSize({10, 10}, {20, 7}), (ShownSize{10, 4}));
}

TEST(PictureLimitTest, RoundsTheShareOfTheForm) {
  EXPECT_EQ(PictureLimit::of(15360, 11520, 0.99F), (PictureLimit{15206, 11405}));
  EXPECT_EQ(PictureLimit::of(15360, 11520, 1.5F), (PictureLimit{23040, 17280}));
  EXPECT_THROW(PictureLimit::of(15360, 11520, 1e6F), base::Overflow);
}

TEST(PictureSize, AtAHundredAndFiftyPercentKeepsWhatIsBelowThat) {
  EXPECT_EQ(Shown({1024, 768}, {1535, 1000}, 1.5F), (Pixels{1535, 1000}));
  EXPECT_EQ(Shown({1024, 768}, {3072, 2000}, 1.5F), (Pixels{1536, 1000}));
  EXPECT_EQ(Shown({1024, 768}, {1000, 2304}, 1.5F), (Pixels{500, 1152}));
}

TEST(PictureSize, OverflowsWhereTheProductNeedsMoreThan32Bits) {
  // On 3840 x 2160 at 96 dots per inch, a photo of 12 megapixels.
  EXPECT_THROW(ScalePictureSize(LimitOf({3840, 2160}, kScale), {60000, 45000}), base::Overflow);
  EXPECT_THROW(ScalePictureSize(LimitOf({2160, 3840}, kScale), {45000, 60000}), base::Overflow);
}

TEST(Reduction, IsOneWhereNothingOverflows) {
  EXPECT_EQ(Reduction({1024, 768}, {4000, 3000}), 1);
  EXPECT_EQ(Reduction({3840, 2160}, {3000, 2000}), 1);
  EXPECT_EQ(Reduction({3840, 2160}, {30000, 200}), 1);
  EXPECT_EQ(Reduction({3840, 2160}, {200, 30000}), 1);
}

TEST(Reduction, IsTheSmallestPowerOfTwoThatKeepsTheProductInRange) {
  EXPECT_EQ(Reduction({3840, 2160}, {4000, 3000}), 2);
  EXPECT_EQ(Reduction({3840, 2160}, {8000, 6000}), 4);
  EXPECT_EQ(Reduction({3840, 2160}, {20000, 15000}), 8);
  EXPECT_EQ(Reduction({3840, 2160}, {30000, 6000}, 1.5F), 4);
}

TEST(Reduction, LeavesTheShownSizeAsItIs) {
  EXPECT_EQ(Shown({3840, 2160}, {4000, 3000}), (Pixels{3802, 2851}));
  EXPECT_EQ(Shown({3840, 2160}, {8000, 6000}), (Pixels{3802, 2851}));
  EXPECT_EQ(Shown({3840, 2160}, {6000, 8000}), (Pixels{1604, 2138}));
  EXPECT_EQ(Shown({3840, 2160}, {30000, 200}), (Pixels{3802, 25}));
  EXPECT_EQ(Shown({3840, 2160}, {200, 30000}), (Pixels{14, 2138}));
  EXPECT_EQ(Shown({3840, 2160}, {8000, 6000}, 1.5F), (Pixels{5760, 4320}));
}

TEST(Reduction, RoundsTheDividedSizesWithHalvesToTheEvenNumber) {
  const LoadedPicture picture{45, 15, 2};
  EXPECT_EQ(picture.loadedWidth(), 22);
  EXPECT_EQ(picture.loadedHeight(), 8);
}

// Every picture is shown at the size that a product without bounds would give, and none ends the show.
TEST(Reduction, GivesTheExactSizeForPicturesOfAllKinds) {
  std::mt19937 engine(3);
  const auto draw = [&engine](int first, int last) {
    return std::uniform_int_distribution<int>(first, last)(engine);
  };
  int reduced = 0;
  for (int i = 0; i < 20'000; ++i) {
    const int twipsPerPixel = std::array{15, 12, 10, 8}.at(static_cast<std::size_t>(draw(0, 3)));
    const PictureLimit limit =
        LimitOf({draw(320, 7680), draw(240, 4320)}, static_cast<float>(draw(1, 150)) / 100.0F, twipsPerPixel);
    const int width = draw(1, 40'000) * twipsPerPixel;
    const int height = draw(1, 40'000) * twipsPerPixel;
    const int reduction = ReductionFor(limit, width, height);
    reduced += reduction > 1 ? 1 : 0;
    const ShownSize shown = ScalePictureSize(limit, {width, height, reduction});
    ShownSize exact{width, height};
    if (width < height && height >= limit.maxPictureHeight) {
      const auto product = static_cast<double>(static_cast<long long>(width) * limit.maxPictureHeight);
      exact = {static_cast<int>(base::RoundHalfToEven(product / height)), limit.maxPictureHeight};
    } else if (width >= height && width >= limit.maxPictureWidth) {
      const auto product = static_cast<double>(static_cast<long long>(height) * limit.maxPictureWidth);
      exact = {limit.maxPictureWidth, static_cast<int>(base::RoundHalfToEven(product / width))};
    }
    ASSERT_EQ(shown, exact) << width << 'x' << height << " / " << reduction;
    if (reduction > 1) {
      ASSERT_THROW(ScalePictureSize(limit, {width, height, reduction / 2}), base::Overflow);
    }
  }
  EXPECT_GT(reduced, 1000);
}

}  // namespace
}  // namespace saver
