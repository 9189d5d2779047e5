#include "saver/background.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "support/fake_pictures.h"

namespace saver {
namespace {

using base::Bitmap;
using base::OpaquePixel;
using base::Pixel;
using base::Rgb;

constexpr Pixel kGround = 0xFF102030;

// Every pixel tells where it stood in the image.
Bitmap Numbered(base::PixelSize size) {
  Bitmap bitmap(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) bitmap.row(y)[x] = 0xFF000000U | static_cast<Pixel>(x * 256 + y);
  }
  bitmap.setOpaque(true);
  return bitmap;
}

Bitmap Composed(base::PixelSize image, ImageLayout layout, base::PixelSize screen, int twipsPerPixel = 15) {
  const auto picture = pictures::MakePicture(std::make_shared<Bitmap>(Numbered(image)));
  return ComposeImage(*picture, layout, screen, twipsPerPixel, kGround).value();
}

TEST(BackgroundKinds, AreNumberedFromZeroToThree) {
  EXPECT_EQ(BackgroundKindNumbered(0), BackgroundKind::SolidColor);
  EXPECT_EQ(BackgroundKindNumbered(1), BackgroundKind::Desktop);
  EXPECT_EQ(BackgroundKindNumbered(2), BackgroundKind::CustomImage);
  EXPECT_EQ(BackgroundKindNumbered(3), BackgroundKind::Gradient);
  for (const double other : {-1.0, 4.0, 0.5}) EXPECT_EQ(BackgroundKindNumbered(other), std::nullopt);
}

TEST(ImageLayouts, AreNumberedFromZeroToTwo) {
  EXPECT_EQ(ImageLayoutNumbered(0), ImageLayout::Centered);
  EXPECT_EQ(ImageLayoutNumbered(1), ImageLayout::Stretched);
  EXPECT_EQ(ImageLayoutNumbered(2), ImageLayout::Tiled);
  EXPECT_EQ(ImageLayoutNumbered(3), std::nullopt);
}

TEST(CenteredImage, StandsInTheMiddleAtItsOwnSize) {
  const Bitmap composed = Composed({4, 2}, ImageLayout::Centered, {10, 8});
  EXPECT_EQ(composed.size(), (base::PixelSize{10, 8}));
  EXPECT_EQ(composed.at(3, 3), 0xFF000000U);
  EXPECT_EQ(composed.at(6, 4), 0xFF000301U);
  EXPECT_EQ(composed.at(2, 3), kGround);
  EXPECT_EQ(composed.at(7, 4), kGround);
  EXPECT_EQ(composed.at(3, 2), kGround);
  EXPECT_EQ(composed.at(3, 5), kGround);
}

TEST(CenteredImage, WithAnOddMarginStandsInThePixelInWhichItsHalfLies) {
  const Bitmap composed = Composed({5, 5}, ImageLayout::Centered, {10, 10});  // half of 75 twips is 37
  EXPECT_EQ(composed.at(2, 2), 0xFF000000U);
  EXPECT_EQ(composed.at(1, 2), kGround);
}

TEST(CenteredImage, WithHalfAPixelOfMarginStandsInThePixelWhichThatCuts) {
  const Bitmap fine =
      Composed({5, 5}, ImageLayout::Centered, {8, 8}, 12);  // half of 36 twips is a pixel and a half
  EXPECT_EQ(fine.at(1, 1), 0xFF000000U);
  const Bitmap larger = Composed({13, 13}, ImageLayout::Centered, {8, 8}, 12);  // -2.5 pixels lie in pixel -3
  EXPECT_EQ(larger.at(0, 0), 0xFF000303U);
}

TEST(CenteredImage, LargerThanTheScreenShowsItsMiddle) {
  EXPECT_EQ(Composed({20, 12}, ImageLayout::Centered, {10, 8}).at(0, 0), 0xFF000502U);
}

// An image that remembers which parts of it were wanted.
class WatchedImage final : public pictures::Picture {
 public:
  explicit WatchedImage(base::PixelSize size)
      : image_(pictures::MakePicture(std::make_shared<Bitmap>(Numbered(size)))) {}

  base::PixelSize size() const override { return image_->size(); }
  base::SharedBitmap drawnAt(base::PixelSize size) const override {
    wholes.push_back(size);
    return image_->drawnAt(size);
  }
  base::SharedBitmap drawnPart(const base::PixelRect& part) const override {
    parts.push_back(part);
    return image_->drawnPart(part);
  }

  mutable std::vector<base::PixelSize> wholes;
  mutable std::vector<base::PixelRect> parts;

 private:
  pictures::SharedPicture image_;
};

TEST(LargeImage, IsDrawnNoFurtherThanItIsSeen) {
  const auto partsOf = [](base::PixelSize size, ImageLayout layout) {
    const WatchedImage image(size);
    EXPECT_TRUE(ComposeImage(image, layout, {10, 8}, 15, kGround));
    EXPECT_TRUE(image.wholes.empty());
    return image.parts;
  };
  using Parts = std::vector<base::PixelRect>;
  EXPECT_EQ(partsOf({120, 90}, ImageLayout::Centered), (Parts{{55, 41, 10, 8}}));
  EXPECT_EQ(partsOf({120, 4}, ImageLayout::Centered), (Parts{{55, 0, 10, 4}}));
  EXPECT_EQ(partsOf({4, 90}, ImageLayout::Centered), (Parts{{0, 41, 4, 8}}));
  EXPECT_EQ(partsOf({120, 90}, ImageLayout::Tiled), (Parts{{0, 0, 10, 8}}));
  EXPECT_EQ(partsOf({120, 3}, ImageLayout::Tiled), (Parts{{0, 0, 10, 3}}));
  EXPECT_EQ(partsOf({4, 3}, ImageLayout::Tiled), (Parts{{0, 0, 4, 3}}));
}

TEST(LargeImage, IsStretchedFromItsRowsToTheScreen) {
  const WatchedImage image({120, 90});
  EXPECT_TRUE(ComposeImage(image, ImageLayout::Stretched, {10, 8}, 15, kGround));
  EXPECT_EQ(image.wholes, (std::vector<base::PixelSize>{{10, 8}}));
  EXPECT_TRUE(image.parts.empty());
}

TEST(LargeImage, ShowsWhatTheWholeImageWouldShowInEveryLayout) {
  for (int width = 1; width < 40; width += 3) {
    for (int height = 1; height < 40; height += 3) {
      const Bitmap whole = Numbered({width, height});
      const Bitmap centered = Composed({width, height}, ImageLayout::Centered, {11, 8});
      const Bitmap tiled = Composed({width, height}, ImageLayout::Tiled, {11, 8});
      Bitmap inTheMiddle({11, 8}, kGround);
      const auto margin = [](int room, int length) {  // half of the twips, cut toward 0, in whole pixels
        return static_cast<int>(std::floor((room - length) * 15 / 2 / 15.0));
      };
      base::CopyRect(inTheMiddle.view(), {margin(11, width), margin(8, height)}, whole,
                     base::PixelRect::ofSize(whole.size()));
      EXPECT_EQ(centered, inTheMiddle) << width << " x " << height;
      for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 11; ++x) ASSERT_EQ(tiled.at(x, y), whole.at(x % width, y % height));
      }
    }
  }
}

TEST(StretchedImage, CoversTheWholeScreen) {
  support::FakePictures files;
  files.add("sky.bmp", {3, 2}, Rgb(1, 2, 3));
  const auto picture = files.open("sky.bmp");
  const auto composed = ComposeImage(*picture, ImageLayout::Stretched, {50, 40}, 15, kGround);
  EXPECT_EQ(composed, Bitmap({50, 40}, OpaquePixel(Rgb(1, 2, 3))));
  EXPECT_EQ(files.drawnSizes, (std::vector<base::PixelSize>{{50, 40}}));
}

TEST(TiledImage, RepeatsFromTheTopLeftCornerAndIsCutAtTheEdges) {
  const Bitmap composed = Composed({4, 3}, ImageLayout::Tiled, {10, 8});
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 10; ++x) {
      EXPECT_EQ(composed.at(x, y), 0xFF000000U | static_cast<Pixel>(x % 4 * 256 + y % 3));
    }
  }
}

TEST(TiledImage, LargerThanTheScreenIsOneTileCutAtTheEdges) {
  const Bitmap composed = Composed({40, 30}, ImageLayout::Tiled, {10, 8});
  EXPECT_EQ(composed.at(0, 0), 0xFF000000U);
  EXPECT_EQ(composed.at(9, 7), 0xFF000907U);
}

TEST(CustomImage, ThatCannotBeDecodedComposesNothing) {
  support::FakePictures files;
  files.addBroken("bad.jpg", {30, 20});
  const auto picture = files.open("bad.jpg");
  for (const ImageLayout layout : {ImageLayout::Centered, ImageLayout::Stretched, ImageLayout::Tiled}) {
    EXPECT_EQ(ComposeImage(*picture, layout, {50, 40}, 15, kGround), std::nullopt);
  }
}

TEST(CustomImage, ShowsTheBackgroundThroughItsTransparentParts) {
  const auto clear = pictures::MakePicture(std::make_shared<Bitmap>(base::PixelSize{4, 4}));
  EXPECT_EQ(ComposeImage(*clear, ImageLayout::Tiled, {10, 8}, 15, kGround), Bitmap({10, 8}, kGround));
}

}  // namespace
}  // namespace saver
