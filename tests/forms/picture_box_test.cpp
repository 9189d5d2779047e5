#include "forms/picture_boxes.h"

#include <gtest/gtest.h>

#include <memory>

#include "forms/form.h"
#include "support/colors.h"

namespace forms {
namespace {

using support::kGreenPixel;
using support::kRedPixel;

base::SharedBitmap Pixels(int width, int height, base::Pixel pixel) {
  return std::make_shared<base::Bitmap>(base::PixelSize{width, height}, pixel);
}

class PictureBoxTest : public testing::Test {
 protected:
  PictureBoxTest() { box.move(0, 0, 10 * 15, 8 * 15); }

  Form form{"form"};
  PictureBox box{form, "box"};
};

TEST_F(PictureBoxTest, PartsOfSeveralSourcesStandOverOneAnotherInTheirOrder) {
  box.paintPart(Pixels(10, 8, kRedPixel), {0, 0, 6, 8});
  box.paintPart(Pixels(10, 8, kGreenPixel), {4, 0, 6, 4});
  const base::SharedBitmap image = box.image();
  EXPECT_EQ(image->at(3, 0), kRedPixel);
  EXPECT_EQ(image->at(4, 3), kGreenPixel);
  EXPECT_EQ(image->at(4, 4), kRedPixel);
  EXPECT_EQ(image->at(6, 4), base::kTransparent);
}

TEST_F(PictureBoxTest, PartsBeyondTheSourceOrTheBoxAreCutOff) {
  box.paintPart(Pixels(4, 20, kRedPixel), {-3, -3, 30, 30});
  const base::SharedBitmap image = box.image();
  EXPECT_EQ(image->size(), (base::PixelSize{10, 8}));
  EXPECT_EQ(image->at(3, 7), kRedPixel);
  EXPECT_EQ(image->at(4, 0), base::kTransparent);
}

TEST_F(PictureBoxTest, AnImageThatWasHandedOutDoesNotChangeWithLaterParts) {
  box.paintPart(Pixels(10, 8, kRedPixel), {0, 0, 10, 8});
  const base::SharedBitmap image = box.image();
  box.paintPart(Pixels(10, 8, kGreenPixel), {0, 0, 10, 8});
  EXPECT_EQ(image->at(1, 1), kRedPixel);
  EXPECT_EQ(box.image()->at(1, 1), kGreenPixel);
}

TEST_F(PictureBoxTest, APictureDrawnWholeHidesThePartsBeforeIt) {
  box.paintPart(Pixels(10, 8, kRedPixel), {0, 0, 10, 8});
  box.paintPicture(*pictures::MakePicture(Pixels(1, 1, kGreenPixel)), {10, 8});
  EXPECT_EQ(box.image()->at(9, 7), kGreenPixel);
  EXPECT_EQ(box.paintedFrom(), nullptr);
}

TEST_F(PictureBoxTest, ManyScatteredPartsAreAllShown) {
  box.move(0, 0, 600 * 15, 400 * 15);
  const base::SharedBitmap large = Pixels(600, 400, kGreenPixel);
  for (int i = 0; i < 1000; ++i) box.paintPart(large, {i % 40 * 15, i / 40 * 15, 1, 1});
  const base::SharedBitmap image = box.image();
  int shown = 0;
  for (int y = 0; y < 400; ++y) {
    for (int x = 0; x < 600; ++x) shown += image->at(x, y) == kGreenPixel ? 1 : 0;
  }
  EXPECT_EQ(shown, 1000);
}

TEST_F(PictureBoxTest, ClearingDropsTheParts) {
  box.paintPart(Pixels(10, 8, kRedPixel), {0, 0, 10, 8});
  box.cls();
  EXPECT_EQ(box.drawing(), nullptr);
  EXPECT_TRUE(box.painted().isEmpty());
}

TEST_F(PictureBoxTest, AnAssignedPictureOfItsSizeIsNotCopied) {
  const auto pixels = std::make_shared<base::Bitmap>(base::PixelSize{40, 30});
  box.setAutoSize(true);
  box.setPicture(pictures::MakePicture(pixels));
  EXPECT_EQ(box.image().get(), pixels.get());
}

}  // namespace
}  // namespace forms
