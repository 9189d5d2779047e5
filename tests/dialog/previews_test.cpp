#include "dialog/previews.h"

#include <gtest/gtest.h>

#include "support/fake_pictures.h"

namespace dialog {
namespace {

struct Thumbnail : testing::Test {
  support::FakePictures pictures;

  base::SharedBitmap draw(base::PixelSize picture, base::PixelSize box) {
    pictures.add("p", picture, base::Rgb(200, 100, 50));
    return DrawThumbnail(*forms::MakePicture(pictures.open("p")), box);
  }

  // The opaque part of a bitmap.
  static base::PixelRect opaquePart(const base::Bitmap& bitmap) {
    base::PixelRect part;
    for (int y = 0; y < bitmap.size().height; ++y) {
      for (int x = 0; x < bitmap.size().width; ++x) {
        if (bitmap.at(x, y) != base::kTransparent) part = part.united({x, y, 1, 1});
      }
    }
    return part;
  }
};

TEST_F(Thumbnail, ALargePhotoIsDecodedAtTheSizeAtWhichItIsShown) {
  const base::SharedBitmap drawn = draw({4000, 3000}, {190, 204});
  EXPECT_EQ(pictures.drawnSizes, (std::vector<base::PixelSize>{{190, 143}}));
  EXPECT_EQ(drawn->size(), (base::PixelSize{190, 204}));
  EXPECT_EQ(opaquePart(*drawn), (base::PixelRect{0, 30, 190, 143}));
}

TEST_F(Thumbnail, ATallPictureKeepsItsProportions) {
  EXPECT_EQ(opaquePart(*draw({100, 408}, {190, 204})), (base::PixelRect{70, 0, 50, 204}));
}

TEST_F(Thumbnail, ASmallPictureIsNotEnlarged) {
  const base::SharedBitmap drawn = draw({20, 10}, {190, 204});
  EXPECT_EQ(opaquePart(*drawn), (base::PixelRect{85, 97, 20, 10}));
  EXPECT_EQ(drawn->at(85, 97), base::OpaquePixel(base::Rgb(200, 100, 50)));
}

TEST_F(Thumbnail, APictureThatCannotBeDecodedHasNone) {
  pictures.addBroken("b", {40, 30});
  EXPECT_EQ(DrawThumbnail(*forms::MakePicture(pictures.open("b")), {190, 204}), nullptr);
}

TEST(Gradient, RunsFromTheColourToBlackInBandsOfOneUnit) {
  const base::Bitmap drawn = DrawGradient({2, 256}, 255, 100, 0);
  for (int y = 0; y < 256; ++y) {
    const base::PackedColor expected = base::Rgb(255 - y, std::max(0, 100 - y), 0);
    ASSERT_EQ(drawn.at(0, y), base::OpaquePixel(expected)) << y;
    ASSERT_EQ(drawn.at(1, y), base::OpaquePixel(expected)) << y;
  }
}

TEST(Gradient, WithoutColourIsBlackFromTopToBottom) {
  const base::Bitmap drawn = DrawGradient({3, 97}, 0, 0, 0);
  for (int y = 0; y < 97; ++y) ASSERT_EQ(drawn.at(1, y), base::OpaquePixel(base::kBlack)) << y;
}

TEST(Gradient, AnyHeightStartsWithTheFullColour) {
  for (const int height : {1, 50, 94, 256, 700}) {
    EXPECT_EQ(DrawGradient({1, height}, 9, 8, 7).at(0, 0), base::OpaquePixel(base::Rgb(9, 8, 7))) << height;
  }
  EXPECT_EQ(DrawGradient({1, 512}, 255, 0, 0).at(0, 511), base::OpaquePixel(base::kBlack));
}

}  // namespace
}  // namespace dialog
