#include "saver/surround.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "support/channels.h"

namespace saver {
namespace {

using base::Bitmap;
using base::PixelSize;
using support::Channel;

// Left half of one colour, right half of another.
Bitmap Halves(PixelSize size, base::Pixel left, base::Pixel right) {
  Bitmap picture(size, left);
  base::FillRect(picture.view(), {size.width / 2, 0, size.width - size.width / 2, size.height}, right);
  picture.setOpaque(true);
  return picture;
}

TEST(Surround, IsAskedForByName) {
  EXPECT_TRUE(AsksForBlurredSurround("blur"));
  EXPECT_TRUE(AsksForBlurredSurround("Blur"));
  EXPECT_FALSE(AsksForBlurredSurround(""));
  EXPECT_FALSE(AsksForBlurredSurround("1"));
}

TEST(Surround, CoversTheScreenAndIsAsOpaqueAsThePicture) {
  for (const PixelSize size : {PixelSize{400, 300}, PixelSize{90, 500}, PixelSize{5, 4}, PixelSize{1, 1}}) {
    const Bitmap surround = MakeSurround(Bitmap(size, 0xFF808080), {640, 360});
    EXPECT_EQ(surround.size(), (PixelSize{640, 360}));
    EXPECT_TRUE(surround.isOpaque());
    EXPECT_EQ(surround.at(0, 0), 0xFF404040U) << "half as bright as the picture";
    EXPECT_EQ(surround.at(639, 359), 0xFF404040U);
  }
}

TEST(Surround, ATransparentPictureHasATransparentSurround) {
  const Bitmap surround = MakeSurround(Bitmap({40, 30}), {160, 90});
  EXPECT_FALSE(surround.isOpaque());
  EXPECT_EQ(surround.at(80, 45), base::kTransparent);
}

TEST(Surround, NoEdgeOfThePictureIsSharpInIt) {
  const Bitmap surround = MakeSurround(Halves({800, 450}, 0xFF000000, 0xFFFFFFFF), {1600, 900});
  int steepest = 0;
  for (int x = 1; x < 1600; ++x) {
    steepest =
        std::max(steepest, std::abs(Channel(surround.at(x, 450), 0) - Channel(surround.at(x - 1, 450), 0)));
  }
  EXPECT_GE(steepest, 1);
  EXPECT_LE(steepest, 2) << "of 127 levels over a wide slope";
  EXPECT_EQ(surround.at(0, 450), 0xFF000000U);
  EXPECT_EQ(surround.at(1599, 450), 0xFF7F7F7FU);
}

TEST(Surround, ShowsTheMiddleOfThePicture) {
  // Of a tall picture the middle third is seen on a wide screen, here the green one.
  Bitmap picture({300, 900}, 0xFFFF0000);
  base::FillRect(picture.view(), {0, 300, 300, 300}, 0xFF00FF00);
  base::FillRect(picture.view(), {0, 600, 300, 300}, 0xFF0000FF);
  picture.setOpaque(true);
  const Bitmap surround = MakeSurround(picture, {900, 600});
  EXPECT_EQ(surround.at(450, 300), 0xFF007F00U);
  EXPECT_GT(Channel(surround.at(450, 5), 1), 100);
  EXPECT_GT(Channel(surround.at(450, 595), 1), 100);
}

TEST(Surround, LooksAsItDid) {
  const Bitmap surround = MakeSurround(Halves({200, 100}, 0xFF204060, 0xFFE0C0A0), {256, 128});
  EXPECT_EQ(surround.at(32, 64), 0xFF142332U);
  EXPECT_EQ(surround.at(72, 64), 0xFF1F2A35U);
  EXPECT_EQ(surround.at(112, 64), 0xFF36393DU);
  EXPECT_EQ(surround.at(152, 64), 0xFF4F4A45U);
  EXPECT_EQ(surround.at(224, 64), 0xFF6C5D4FU);
}

}  // namespace
}  // namespace saver
