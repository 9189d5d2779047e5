// How pictures are fitted and what surrounds them, in the real show.
#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/look_show.h"

namespace saver {
namespace {

using base::Pixel;
using support::kBlackPixel;
using support::kFirstPictureMs;
using support::kGreenPixel;
using support::kRed;
using support::kRedPixel;

class FormLook : public testing::Test, protected support::LookShow {};

TEST_F(FormLook, AWholePictureIsEnlargedWithinItsShareOfTheScreen) {
  show.set("extras/fit", "whole");
  show.addPicture({400, 200}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  // 90 of 100 parts of 320: 288 x 144 in the middle.
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{16, 48, 288, 144}));
  EXPECT_EQ(show.screenAt(16, 48), kRedPixel);
  EXPECT_EQ(show.screenAt(303, 191), kRedPixel);
  EXPECT_EQ(show.screenAt(15, 48), kBlackPixel);
  EXPECT_EQ(show.screenAt(16, 47), kBlackPixel);
}

TEST_F(FormLook, ASmallWholePictureIsShownAtTwiceItsSize) {
  show.set("extras/fit", "whole");
  show.addPicture({60, 40}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{100, 80, 120, 80}));
}

TEST_F(FormLook, AFillingPictureCoversTheScreenAndIsCutEvenly) {
  show.set("extras/fit", "fill");
  base::Bitmap picture({320, 320}, kRedPixel);
  base::FillRect(picture.view(), {0, 40, 320, 240}, kGreenPixel);
  picture.setOpaque(true);
  addPixels("0", picture);
  show.start();
  show.runFor(kFirstPictureMs);
  for (const base::PixelPoint corner : {base::PixelPoint{0, 0}, {319, 0}, {0, 239}, {319, 239}}) {
    EXPECT_EQ(show.screenAt(corner.x, corner.y), kGreenPixel);
  }
}

TEST_F(FormLook, FloatingPicturesKeepTheirDocumentedSize) {
  show.set("extras/fit", "fill");
  show.set("extras/surround", "blur");
  show.set("extras/panZoom", "8");
  show.set("image/picRandom", "float");
  show.addPicture({100, 50}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect().size(), (base::PixelSize{100, 50}));
  EXPECT_EQ(show.screenAt(0, 0), kBlackPixel);
}

TEST_F(FormLook, ASurroundLeavesNoBar) {
  show.set("extras/fit", "whole");
  show.set("extras/surround", "blur");
  show.addPicture({100, 300}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{0, 0, 320, 240}));
  EXPECT_EQ(show.screenAt(160, 120), kRedPixel);
  EXPECT_EQ(show.screenAt(0, 0), 0xFF7F0000U);
  EXPECT_EQ(show.screenAt(319, 239), 0xFF7F0000U);
}

TEST_F(FormLook, APictureOfTheDocumentedSizeHasASurroundToo) {
  show.set("extras/surround", "blur");
  show.addPicture({100, 60}, kRed);
  show.start();
  show.runFor(kFirstPictureMs);
  EXPECT_EQ(show.screenAt(110, 90), kRedPixel);
  EXPECT_EQ(show.screenAt(109, 90), 0xFF7F0000U);
  EXPECT_EQ(show.screenAt(209, 149), kRedPixel);
}

TEST_F(FormLook, TheEffectsWorkOnTheComposedScreen) {
  show.set("extras/surround", "blur");
  show.set("extras/transitionTime", "1000");
  show.set("transitions/bLeftWipe", "1");
  show.addPicture({100, 60}, kRed);
  show.start();
  at(kFirstPictureMs + 500, [&] {
    EXPECT_EQ(show.screenAt(20, 20), 0xFF7F0000U) << "wiped in already, far from the picture itself";
    EXPECT_EQ(show.screenAt(300, 20), kBlackPixel);
  });
  run();
}

}  // namespace
}  // namespace saver
