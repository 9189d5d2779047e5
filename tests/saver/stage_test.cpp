#include "saver/stage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "support/colors.h"
#include "support/fake_stage_window.h"
#include "support/fake_text_renderer.h"

namespace {

using support::kBlackPixel;
using support::kBluePixel;
using support::kGreenPixel;
using support::kRedPixel;

base::SharedBitmap PlainPixels(base::PixelSize size, base::Pixel pixel) {
  return std::make_shared<base::Bitmap>(size, pixel);
}

pictures::SharedPicture Plain(int width, int height, base::Pixel pixel) {
  return pictures::MakePicture(std::make_shared<base::Bitmap>(base::PixelSize{width, height}, pixel));
}

// A form of the show's kind on a small screen, at one pixel to 15 twips.
class StageTest : public testing::Test {
 protected:
  StageTest() {
    form.setHost(&stage);
    form.setBackColor(base::kBlack);
    picture.setAutoSize(true);
    picture.setVisible(false);
    label.setVisible(false);
    label.setTransparent(true);
    label.setFont({.name = "Any", .sizePoints = 10});
    label.setForeColor(base::kWhite);
    stage.show(form, background, picture, {&label});
    stage.flush();
  }

  void placePicture(int x, int y) {
    picture.setLeft(static_cast<float>(x * 15));
    picture.setTop(static_cast<float>(y * 15));
  }

  base::Pixel screenAt(int x, int y) const { return window.screen.at(x, y); }

  support::FakeStageWindow window{{40, 30}};
  support::FakeTextRenderer text;
  saver::Stage stage{window, text, 15};
  forms::Form form{"Form1"};
  forms::PictureBox background{form, "BgrImage"};
  forms::PictureBox picture{form, "DisplayingPicture"};
  forms::Label label{form, "Label1"};
};

TEST_F(StageTest, StartsWithTheFormsBackgroundColour) { EXPECT_EQ(screenAt(20, 15), kBlackPixel); }

TEST_F(StageTest, AChangedBackgroundColourFillsTheScreen) {
  form.setBackColor(base::Rgb(255, 0, 0));
  stage.flush();
  EXPECT_EQ(screenAt(0, 0), kRedPixel);
  EXPECT_EQ(screenAt(39, 29), kRedPixel);
}

TEST_F(StageTest, ThePictureStandsOverTheBackground) {
  background.setPicture(Plain(40, 30, kBluePixel));
  picture.setPicture(Plain(10, 8, kRedPixel));
  placePicture(5, 6);
  picture.setVisible(true);
  picture.setPicture(picture.picture());
  stage.flush();
  EXPECT_EQ(screenAt(4, 6), kBluePixel);
  EXPECT_EQ(screenAt(5, 6), kRedPixel);
  EXPECT_EQ(screenAt(14, 13), kRedPixel);
  EXPECT_EQ(screenAt(15, 13), kBluePixel);
}

TEST_F(StageTest, ABoxThatAppearsShowsWhatIsBehindItUntilSomethingIsDrawn) {
  background.setPicture(Plain(40, 30, kBluePixel));
  picture.setPicture(Plain(10, 8, kRedPixel));
  picture.setVisible(true);
  stage.flush();
  EXPECT_EQ(screenAt(3, 3), kBluePixel);
  picture.paintPart(PlainPixels({10, 8}, kGreenPixel), {2, 2, 3, 3});
  EXPECT_EQ(screenAt(3, 3), kGreenPixel);
  EXPECT_EQ(screenAt(6, 3), kBluePixel);
}

TEST_F(StageTest, DrawingOnThePictureBoxIsOnTheScreenAtOnceAndOnlyThere) {
  picture.setPicture(Plain(10, 8, kRedPixel));
  picture.setVisible(true);
  picture.setPicture(picture.picture());
  stage.flush();
  window.presented.clear();
  picture.paintPart(PlainPixels({10, 8}, kGreenPixel), {0, 0, 4, 8});
  EXPECT_EQ(window.presented, (std::vector<base::PixelRect>{{0, 0, 4, 8}}));
  EXPECT_EQ(screenAt(3, 7), kGreenPixel);
  EXPECT_EQ(screenAt(4, 7), kRedPixel);
}

TEST_F(StageTest, ATransparentPictureIsPaintedOverWhatIsBehindIt) {
  background.setPicture(Plain(40, 30, kBluePixel));
  picture.setPicture(Plain(10, 8, kRedPixel));
  picture.setVisible(true);
  stage.flush();
  picture.paintPart(PlainPixels({10, 8}, 0x80400000U), {0, 0, 10, 8});
  EXPECT_EQ(screenAt(1, 1), 0xFF40007FU);
}

TEST_F(StageTest, PaintedPartsBeyondTheirSourceShowWhatIsBehindThem) {
  background.setPicture(Plain(40, 30, kBluePixel));
  picture.setPicture(Plain(10, 8, kRedPixel));
  picture.setVisible(true);
  stage.flush();
  picture.paintPart(PlainPixels({4, 4}, kGreenPixel), {0, 0, 10, 8});
  EXPECT_EQ(screenAt(3, 3), kGreenPixel);
  EXPECT_EQ(screenAt(4, 3), kBluePixel);
}

TEST_F(StageTest, APictureAssignedAtTheEndOfItsTransitionPresentsOnlyWhatIsNotThereYet) {
  picture.setPicture(Plain(10, 8, kRedPixel));
  picture.setVisible(true);
  stage.flush();
  const base::SharedBitmap next = PlainPixels({10, 8}, kGreenPixel);
  picture.paintPart(next, {0, 0, 6, 8});
  picture.paintPart(next, {6, 0, 3, 8});
  window.presented.clear();
  picture.setPicture(pictures::MakePicture(next));
  stage.flush();
  EXPECT_EQ(window.presented, (std::vector<base::PixelRect>{{9, 0, 1, 8}}));
  EXPECT_EQ(screenAt(9, 7), kGreenPixel);
}

TEST_F(StageTest, APaintMessageInTheMiddleOfATransitionShowsWhatIsOnTheScreen) {
  picture.setPicture(Plain(10, 8, kRedPixel));
  picture.setVisible(true);
  picture.setPicture(picture.picture());
  stage.flush();
  const base::SharedBitmap next = PlainPixels({10, 8}, kGreenPixel);
  picture.paintPart(next, {0, 0, 3, 8});
  window.paint();
  EXPECT_EQ(screenAt(2, 0), kGreenPixel);
  EXPECT_EQ(screenAt(3, 0), kRedPixel);
  picture.paintPart(next, {3, 0, 3, 8});
  EXPECT_EQ(screenAt(5, 7), kGreenPixel);
  EXPECT_EQ(screenAt(6, 7), kRedPixel);
}

TEST_F(StageTest, ACaptionThatChangesInTheMiddleOfATransitionShowsNothingOfWhatIsToCome) {
  picture.setPicture(Plain(10, 8, kRedPixel));
  picture.setVisible(true);
  picture.setPicture(picture.picture());
  label.setAutoSize(true);
  stage.flush();
  const base::SharedBitmap next = PlainPixels({10, 8}, kGreenPixel);
  picture.paintPart(next, {0, 0, 1, 8});
  label.setLeft(5 * 15);
  label.setCaption("A");
  label.setVisible(true);
  label.setVisible(false);
  stage.flush();
  EXPECT_EQ(screenAt(6, 1), kRedPixel);
  picture.paintPart(next, {1, 0, 9, 8});
  EXPECT_EQ(screenAt(6, 1), kGreenPixel);
}

TEST_F(StageTest, AnotherPictureThanThePaintedOneIsPresentedWhole) {
  picture.setPicture(Plain(10, 8, kRedPixel));
  picture.setVisible(true);
  stage.flush();
  picture.paintPart(PlainPixels({10, 8}, kGreenPixel), {0, 0, 10, 8});
  picture.setPicture(Plain(10, 8, kBluePixel));
  stage.flush();
  EXPECT_EQ(screenAt(5, 5), kBluePixel);
}

// Whatever was presented in parts is what composing everything anew gives.
TEST_F(StageTest, TheScreenShowsAFreshCompositionAfterAnySequenceOfChanges) {
  std::mt19937 random(20261121);
  const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  const std::vector<base::Pixel> pixels{kRedPixel, kGreenPixel, 0x80004000U, kBluePixel};
  base::SharedBitmap source = PlainPixels({10, 8}, kGreenPixel);
  label.setAutoSize(true);
  for (int step = 0; step < 20000; ++step) {
    switch (below(14)) {
      case 0:
        source = PlainPixels(below(2) == 0 && !picture.scaleSize().isEmpty()
                                 ? picture.scaleSize()
                                 : base::PixelSize{1 + below(14), 1 + below(12)},
                             pixels[static_cast<std::size_t>(below(4))]);
        break;
      case 1:
        picture.setPicture(pictures::MakePicture(source));
        break;
      case 2:
        placePicture(below(44) - 4, below(34) - 4);
        break;
      case 3:
        picture.setVisible(below(4) != 0);
        break;
      case 4:
        label.setCaption(std::string(static_cast<std::size_t>(below(5)), 'x'));
        break;
      case 5:
        label.setVisible(below(2) == 0);
        break;
      case 6:
        background.setPicture(below(3) == 0 ? nullptr : Plain(40, 1 + below(30), kBluePixel));
        break;
      case 7:
        picture.cls();
        break;
      case 8:
        if (below(8) == 0)
          picture.paintPicture(*pictures::MakePicture(source), {1 + below(14), 1 + below(12)});
        break;
      default:
        picture.paintPart(source, {below(12) - 1, below(10) - 1, below(14), below(12)});
        break;
    }
    stage.flush();
    const base::Bitmap shown = window.screen;
    if (below(3) == 0) {
      window.paint();
      ASSERT_EQ(shown, window.screen) << "painted after step " << step;
      continue;
    }
    if (below(3) == 0) continue;
    stage.invalidateAll();
    stage.flush();
    ASSERT_EQ(shown, window.screen) << "after step " << step;
  }
}

TEST_F(StageTest, ClearingDropsWhatWasDrawnAndGoesOnShowingTheAssignedPicture) {
  picture.setPicture(Plain(10, 8, kRedPixel));
  picture.setVisible(true);
  picture.setPicture(picture.picture());
  picture.paintPart(PlainPixels({10, 8}, kGreenPixel), {0, 0, 4, 8});
  picture.cls();
  EXPECT_EQ(screenAt(2, 2), kRedPixel);
}

TEST_F(StageTest, AMovedPictureUncoversTheBackgroundAndPresentsOneArea) {
  background.setPicture(Plain(40, 30, kBluePixel));
  picture.setPicture(Plain(10, 8, kRedPixel));
  placePicture(5, 6);
  picture.setVisible(true);
  picture.setPicture(picture.picture());
  stage.flush();
  window.presented.clear();
  placePicture(6, 7);
  stage.flush();
  EXPECT_EQ(screenAt(5, 6), kBluePixel);
  EXPECT_EQ(screenAt(15, 14), kRedPixel);
  EXPECT_EQ(window.presented, (std::vector<base::PixelRect>{{5, 6, 11, 9}}));
}

TEST_F(StageTest, ThePaintedTextStandsOverThePictureInItsColour) {
  picture.setPicture(Plain(40, 30, kRedPixel));
  picture.setVisible(true);
  picture.setPicture(picture.picture());
  label.setAutoSize(true);
  label.setCaption("A");
  label.setVisible(true);
  stage.flush();
  EXPECT_EQ(screenAt(0, 0), 0xFFFFFFFFU);
  EXPECT_EQ(screenAt(5, 0), kRedPixel) << "the gap between letters is transparent";
  EXPECT_EQ(screenAt(0, 12), kRedPixel) << "below the text";
}

TEST_F(StageTest, LettersThatReachBeyondTheirLabelAreShownWholeAndLeaveNothingBehind) {
  text.reach = 3;
  label.setAutoSize(true);
  label.setCaption("jQ");
  label.setVisible(true);
  for (int x = 0; x < 30; ++x) {
    label.setLeft(static_cast<float>(x * 15));
    if (x % 7 == 6) label.setCaption(x % 2 == 0 ? "jQ" : "j");
    stage.flush();
    const base::PixelRect place = label.pixelRect();
    EXPECT_EQ(screenAt(std::max(place.left - 3, 0), 5), 0xFFFFFFFFU);
    EXPECT_EQ(screenAt(std::min(place.right() + 2, 39), 5), 0xFFFFFFFFU);
    const base::Bitmap shown = window.screen;
    stage.invalidateAll();
    stage.flush();
    ASSERT_EQ(shown, window.screen) << x;
  }
  label.setVisible(false);
  stage.flush();
  EXPECT_EQ(window.screen, base::Bitmap({40, 30}, kBlackPixel));
}

TEST(BlendText, TakesTheCoverageOfTheGroundUnderEachComponent) {
  const os::TextMask mask{{3, 1}, 0, {{0, 0}, {255, 255}, {100, 40}}};
  const auto blended = [&](base::PackedColor ink, base::PackedColor ground) {
    base::Bitmap target({3, 1}, base::OpaquePixel(ground));
    saver::BlendText(target.view(), {0, 0}, mask, ink, {0, 0, 3, 1});
    return target;
  };
  const base::Bitmap light = blended(base::kWhite, base::kBlack);
  EXPECT_EQ(light.at(0, 0), kBlackPixel);
  EXPECT_EQ(light.at(1, 0), 0xFFFFFFFFU);
  EXPECT_EQ(light.at(2, 0), base::OpaquePixel(base::Rgb(100, 100, 100)));
  const base::Bitmap dark = blended(base::kBlack, base::kWhite);
  EXPECT_EQ(dark.at(2, 0), base::OpaquePixel(base::Rgb(215, 215, 215)));
  const base::Bitmap both = blended(base::Rgb(255, 0, 0), base::Rgb(0, 0, 255));
  EXPECT_EQ(both.at(2, 0), base::OpaquePixel(base::Rgb(100, 0, 215)));
}

TEST_F(StageTest, AnUnchangedTextIsDrawnOnceHoweverOftenItMoves) {
  label.setAutoSize(true);
  label.setCaption("Moving");
  label.setVisible(true);
  for (int i = 0; i < 20; ++i) {
    label.setLeft(static_cast<float>(i * 100));
    stage.flush();
  }
  EXPECT_EQ(text.drawn, 1);
}

TEST_F(StageTest, TheBackgroundUnderAPictureHasNoPictureAndNoText) {
  background.setPicture(Plain(40, 30, kBluePixel));
  picture.setPicture(Plain(10, 8, kRedPixel));
  picture.setVisible(true);
  picture.setPicture(picture.picture());
  label.setCaption("XX");
  label.setAutoSize(true);
  label.setVisible(true);
  stage.flush();
  const base::Bitmap under = stage.backgroundUnder({0, 0, 10, 8});
  EXPECT_EQ(under, base::Bitmap({10, 8}, kBluePixel));
  EXPECT_TRUE(under.isOpaque());
}

TEST_F(StageTest, TheBackgroundOutsideTheWindowIsTransparent) {
  const base::Bitmap under = stage.backgroundUnder({35, -2, 10, 5});
  EXPECT_EQ(under.at(0, 1), base::kTransparent);
  EXPECT_EQ(under.at(0, 2), kBlackPixel);
  EXPECT_EQ(under.at(5, 2), base::kTransparent);
  EXPECT_FALSE(under.isOpaque());
}

TEST_F(StageTest, TransparentPartsOfAPictureShowTheBackground) {
  background.setPicture(Plain(40, 30, kBluePixel));
  auto pixels = std::make_shared<base::Bitmap>(base::PixelSize{4, 4});
  pixels->row(1)[1] = 0x80400000U;  // half-transparent dark red
  picture.setPicture(pictures::MakePicture(pixels));
  picture.setVisible(true);
  picture.setPicture(picture.picture());
  stage.flush();
  EXPECT_EQ(screenAt(0, 0), kBluePixel);
  EXPECT_EQ(screenAt(1, 1), 0xFF40007FU);
}

TEST_F(StageTest, ThePointerMeetsTheTopmostVisibleControl) {
  picture.setPicture(Plain(10, 8, kRedPixel));
  label.setAutoSize(true);
  label.setCaption("A");
  EXPECT_EQ(stage.controlAt({1, 1}), nullptr);
  picture.setVisible(true);
  EXPECT_EQ(stage.controlAt({1, 1}), &picture);
  label.setVisible(true);
  EXPECT_EQ(stage.controlAt({1, 1}), &label);
  EXPECT_EQ(stage.controlAt({9, 7}), &picture);
  EXPECT_EQ(stage.controlAt({10, 7}), nullptr);
}

TEST_F(StageTest, NothingIsPresentedWhenNothingChanged) {
  window.presented.clear();
  stage.flush();
  label.setCaption("hidden");
  stage.flush();
  EXPECT_TRUE(window.presented.empty());
}

}  // namespace
