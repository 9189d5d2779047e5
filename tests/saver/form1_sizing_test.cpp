#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/colors.h"
#include "support/show_stage.h"

namespace {

using support::kRed;
using support::ShowStage;

base::PixelRect ShownPlace(const ShowStage& show) { return show.form->DisplayingPicture.pixelRect(); }

TEST(PictureSize, ALandscapePictureUnderTheLimitKeepsItsSizeThoughItOverrunsTheBottom) {
  ShowStage show({1024, 768});
  show.set("image/picturePercent", "99");
  show.addPicture({1000, 900}, kRed);
  show.start();
  show.runFor(600);
  EXPECT_EQ(ShownPlace(show).size(), (base::PixelSize{1000, 900}));
  EXPECT_LT(ShownPlace(show).top, 0);
}

TEST(PictureSize, APortraitPictureIsShrunkByItsHeight) {
  ShowStage show({1024, 768});
  show.set("image/picturePercent", "99");
  show.addPicture({900, 1000}, kRed);
  show.start();
  show.runFor(600);
  EXPECT_EQ(ShownPlace(show).size(), (base::PixelSize{684, 760}));
  EXPECT_EQ(ShownPlace(show).left, (1024 - 684) / 2);
  EXPECT_EQ(ShownPlace(show).top, (768 - 760) / 2);
}

TEST(PictureSize, AFileIsDecodedOnceStraightAtTheSizeThatIsShown) {
  ShowStage show({1024, 768});
  show.set("image/picturePercent", "50");
  show.addPicture({4000, 3000}, kRed);
  show.start();
  show.runFor(600);
  EXPECT_EQ(show.pictures.drawnSizes, (std::vector<base::PixelSize>{{512, 384}}));
}

TEST(PictureSize, APhotoWhoseProductOverflowsIsShownAtTheSizeItWouldHave) {
  ShowStage show({3840, 2160});
  show.set("image/picturePercent", "99");
  show.addPicture({8000, 6000}, kRed);
  show.start();
  show.runFor(600);
  EXPECT_TRUE(show.errors.empty());
  EXPECT_EQ(ShownPlace(show).size(), (base::PixelSize{3802, 2851}));
}

TEST(PictureSize, TheOverflowOfTheProductIsAnErrorOfTheScalingItself) {
  ShowStage show({3840, 2160});
  show.set("image/picturePercent", "99");
  show.addPicture({8000, 6000}, kRed);
  show.start();
  show.form->IntialPicture.setPicture(show.pictures.open("C:\\pictures\\0.jpg"));
  EXPECT_THROW(show.form->ScalePicture(), base::Overflow);
}

TEST(PictureSize, FollowsTheResolutionOfTheScreen) {
  for (const int dpi : {96, 120, 144, 192}) {
    ShowStage show({1600, 1200}, dpi);
    show.set("image/picturePercent", "50");
    show.addPicture({1600, 800}, kRed);
    show.start();
    show.runFor(600);
    EXPECT_EQ(ShownPlace(show), (base::PixelRect{400, 400, 800, 400})) << dpi;
  }
}

TEST(PictureSize, AnEmptyTurnKeepsTheBoxAndTheNextPictureTakesItsOwnSize) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({200, 60}, kRed);
  show.set("images/2", "C:\\gone.jpg");
  show.set("total/total", "3");
  show.start();
  show.runFor(600 + 1300 + 1400);
  EXPECT_EQ(ShownPlace(show).size(), (base::PixelSize{200, 60}));
  show.runFor(1300);
  EXPECT_EQ(ShownPlace(show).size(), (base::PixelSize{100, 80}));
}

}  // namespace
