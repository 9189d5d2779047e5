#include "base/bitmap.h"

#include <gtest/gtest.h>

#include <utility>

namespace base {
namespace {

constexpr Pixel kRed = OpaquePixel(Rgb(255, 0, 0));
constexpr Pixel kBlue = OpaquePixel(Rgb(0, 0, 255));

TEST(BitmapTest, ACopyHasPixelsOfItsOwn) {
  Bitmap red({3, 2}, kRed);
  const Bitmap copy = red;
  EXPECT_TRUE(copy.isOpaque());
  EXPECT_EQ(copy, red);
  red.row(1)[2] = kBlue;
  EXPECT_EQ(copy.at(2, 1), kRed);
  EXPECT_FALSE(copy == red);
}

TEST(BitmapTest, AssignedFromOneOfItsSizeItKeepsItsMemory) {
  Bitmap bitmap({3, 2});
  const Pixel* place = bitmap.row(0);
  const Bitmap red({3, 2}, kRed);
  bitmap = red;
  EXPECT_EQ(bitmap.row(0), place);
  EXPECT_EQ(bitmap, red);
  EXPECT_TRUE(bitmap.isOpaque());
}

TEST(BitmapTest, AssignedFromOneOfAnotherSizeItTakesThatSize) {
  Bitmap bitmap({30, 20}, kBlue);
  const Bitmap red({2, 3}, kRed);
  bitmap = red;
  EXPECT_EQ(bitmap, red);
  bitmap = Bitmap();
  EXPECT_TRUE(bitmap.isEmpty());
  EXPECT_FALSE(bitmap.isOpaque());
}

TEST(BitmapTest, AssignedFromItselfItStaysAsItIs) {
  Bitmap bitmap({3, 2}, kRed);
  const Bitmap& itself = bitmap;
  bitmap = itself;
  EXPECT_EQ(bitmap, Bitmap({3, 2}, kRed));
}

TEST(BitmapTest, AMoveTakesThePixelsAndLeavesAnEmptyOne) {
  Bitmap red({3, 2}, kRed);
  const Pixel* place = red.row(0);
  Bitmap moved = std::move(red);
  EXPECT_EQ(moved.row(0), place);
  EXPECT_TRUE(moved.isOpaque());
  EXPECT_TRUE(red.isEmpty());  // NOLINT(bugprone-use-after-move): what is promised of it
  EXPECT_FALSE(red.isOpaque());

  Bitmap assigned({1, 1}, kBlue);
  assigned = std::move(moved);
  EXPECT_EQ(assigned, Bitmap({3, 2}, kRed));
  EXPECT_TRUE(moved.isEmpty());  // NOLINT(bugprone-use-after-move)
}

TEST(BitmapTest, WithoutAreaItIsEmptyAndEqualToAnyOtherSuch) {
  EXPECT_EQ(Bitmap({0, 5}, kRed), Bitmap({-3, 2}, kBlue));
  const Bitmap empty({7, 0});
  Bitmap copy = empty;
  copy = empty;
  EXPECT_EQ(copy, Bitmap());
}

TEST(BitmapTest, DiffersBySizeEvenWhereThePixelsAreTheSame) {
  EXPECT_FALSE(Bitmap({3, 2}, kRed) == Bitmap({2, 3}, kRed));
}

}  // namespace
}  // namespace base
