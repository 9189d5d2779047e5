// The key that holds a picture.
#include <gtest/gtest.h>

#include "support/keyed_show.h"

namespace {

using namespace support::key;
using support::KeyedShow;

class KeysThatHold : public testing::Test, protected KeyedShow {};

TEST_F(KeysThatHold, HoldThePictureUntilTheShowIsToGoOn) {
  begin(3);
  type({kSpace});
  EXPECT_EQ(sign(), "The picture is held.");
  stage.runFor(1900);
  EXPECT_EQ(sign(), "") << "after two seconds";
  stage.runFor(600'000);
  EXPECT_EQ(shown(), 0);
  type({'P'});
  EXPECT_EQ(sign(), "The show goes on.");
  stage.runFor(59'000);
  EXPECT_EQ(shown(), 0);
  stage.runFor(2000);
  EXPECT_EQ(shown(), 1);
}

TEST_F(KeysThatHold, AHeldShowCanBeSteppedThroughAndStaysHeld) {
  begin(3);
  type({kSpace, kRight});
  EXPECT_EQ(shown(), 1);
  stage.runFor(600'000);
  EXPECT_EQ(shown(), 1);
}

TEST_F(KeysThatHold, AHeldKeyForHoldingHoldsOnce) {
  begin(3);
  press(kSpace);
  for (int i = 0; i < 7; ++i) repeat(kSpace);
  EXPECT_EQ(sign(), "The picture is held.");
}

TEST_F(KeysThatHold, AHeldPictureFloatsNoFurtherAndTheClockGoesOn) {
  stage.set("image/picRandom", "rand");
  stage.set("image/timeDisplay", "1");
  begin(2);
  type({kSpace});
  const base::PixelRect place = show->form().DisplayingPicture.pixelRect();
  const std::string time = show->form().time.caption();
  stage.runFor(5000);
  EXPECT_EQ(show->form().DisplayingPicture.pixelRect(), place);
  EXPECT_NE(show->form().time.caption(), time);
  type({kSpace});
  stage.runFor(5000);
  EXPECT_NE(show->form().DisplayingPicture.pixelRect(), place);
}

TEST_F(KeysThatHold, AHeldPictureGlidesNoFurtherAndGoesOnFromThere) {
  stage.set("extras/fit", "fill");
  stage.set("extras/panZoom", "20");
  addPictures(1);
  base::Bitmap stripes({640, 480});
  for (int y = 0; y < 480; ++y) {
    for (int x = 0; x < 640; ++x)
      stripes.row(y)[x] = 0xFF000000U | static_cast<base::Pixel>(x * 255 / 640) << 16;
  }
  stripes.setOpaque(true);
  stage.pictures.add(pathOf(0), std::move(stripes));
  start();
  stage.runFor(20'000);
  type({kSpace});
  stage.runFor(3000);  // the sign has gone
  const base::Bitmap held = stage.window.screen;
  stage.runFor(10'000);
  EXPECT_TRUE(stage.window.screen == held);
  type({kSpace});
  stage.runFor(3000);
  EXPECT_FALSE(stage.window.screen == held);
}

}  // namespace
