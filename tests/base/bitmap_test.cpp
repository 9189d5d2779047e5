#include "base/bitmap.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/colors.h"

namespace base {
namespace {

using support::kBluePixel;
using support::kRedPixel;

TEST(Cropped, HasThatPartOfThePicture) {
  Bitmap picture({4, 3}, kRedPixel);
  picture.setOpaque(true);
  FillRect(picture.view(), {2, 1, 2, 2}, kBluePixel);
  const Bitmap part = Cropped(picture, {1, 1, 2, 2});
  Bitmap expected({2, 2}, kRedPixel);
  FillRect(expected.view(), {1, 0, 1, 2}, kBluePixel);
  EXPECT_EQ(part, expected);
  EXPECT_TRUE(part.isOpaque());
  picture.setOpaque(false);
  EXPECT_FALSE(Cropped(picture, {1, 1, 2, 2}).isOpaque());
}

TEST(Cropped, IsTransparentWhereItReachesBeyondThePicture) {
  Bitmap picture({4, 3}, kRedPixel);
  picture.setOpaque(true);
  const Bitmap part = Cropped(picture, {2, -1, 4, 3});
  Bitmap expected({4, 3});
  FillRect(expected.view(), {0, 1, 2, 2}, kRedPixel);
  EXPECT_EQ(part, expected);
  EXPECT_FALSE(part.isOpaque());
  EXPECT_EQ(Cropped(picture, {9, 9, 2, 1}), Bitmap({2, 1}));
}

TEST(BitmapTest, ACopyHasPixelsOfItsOwn) {
  Bitmap red({3, 2}, kRedPixel);
  const Bitmap copy = red;
  EXPECT_TRUE(copy.isOpaque());
  EXPECT_EQ(copy, red);
  red.row(1)[2] = kBluePixel;
  EXPECT_EQ(copy.at(2, 1), kRedPixel);
  EXPECT_FALSE(copy == red);
}

TEST(BitmapTest, AssignedFromOneOfItsSizeItKeepsItsMemory) {
  Bitmap bitmap({3, 2});
  const Pixel* place = bitmap.row(0);
  const Bitmap red({3, 2}, kRedPixel);
  bitmap = red;
  EXPECT_EQ(bitmap.row(0), place);
  EXPECT_EQ(bitmap, red);
  EXPECT_TRUE(bitmap.isOpaque());
}

TEST(BitmapTest, AssignedFromOneOfAnotherSizeItTakesThatSize) {
  Bitmap bitmap({30, 20}, kBluePixel);
  const Bitmap red({2, 3}, kRedPixel);
  bitmap = red;
  EXPECT_EQ(bitmap, red);
  bitmap = Bitmap();
  EXPECT_TRUE(bitmap.isEmpty());
  EXPECT_FALSE(bitmap.isOpaque());
}

TEST(BitmapTest, AssignedFromItselfItStaysAsItIs) {
  Bitmap bitmap({3, 2}, kRedPixel);
  const Bitmap& itself = bitmap;
  bitmap = itself;
  EXPECT_EQ(bitmap, Bitmap({3, 2}, kRedPixel));
}

TEST(BitmapTest, AMoveTakesThePixelsAndLeavesAnEmptyOne) {
  Bitmap red({3, 2}, kRedPixel);
  const Pixel* place = red.row(0);
  Bitmap moved = std::move(red);
  EXPECT_EQ(moved.row(0), place);
  EXPECT_TRUE(moved.isOpaque());
  EXPECT_TRUE(red.isEmpty());  // NOLINT(bugprone-use-after-move): what is promised of it
  EXPECT_FALSE(red.isOpaque());

  Bitmap assigned({1, 1}, kBluePixel);
  assigned = std::move(moved);
  EXPECT_EQ(assigned, Bitmap({3, 2}, kRedPixel));
  EXPECT_TRUE(moved.isEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST(BitmapTest, WithoutAreaItIsEmptyAndEqualToAnyOtherSuch) {
  EXPECT_EQ(Bitmap({0, 5}, kRedPixel), Bitmap({-3, 2}, kBluePixel));
  const Bitmap empty({7, 0});
  Bitmap copy = empty;
  copy = empty;
  EXPECT_EQ(copy, Bitmap());
}

TEST(BitmapTest, DiffersBySizeEvenWhereThePixelsAreTheSame) {
  EXPECT_FALSE(Bitmap({3, 2}, kRedPixel) == Bitmap({2, 3}, kRedPixel));
}

}  // namespace
}  // namespace base
