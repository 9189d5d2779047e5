#include "dialog/picture_list.h"

#include <gtest/gtest.h>

#include "support/fake_pictures.h"

namespace dialog {
namespace {

struct Thumbnail : testing::Test {
  support::FakePictures pictures;

  base::SharedBitmap draw(base::PixelSize picture, base::PixelSize box) {
    pictures.add("p", picture, base::Rgb(200, 100, 50));
    return DrawThumbnail(*pictures.open("p"), box);
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
  EXPECT_EQ(DrawThumbnail(*pictures.open("b"), {190, 204}), nullptr);
}

}  // namespace
}  // namespace dialog
