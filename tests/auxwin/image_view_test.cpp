#include "auxwin/image_view.h"

#include <gtest/gtest.h>

#include "support/fake_dialogs.h"
#include "support/fake_pictures.h"
#include "support/fake_window_system.h"

namespace auxwin {
namespace {

struct ImageViewTest : testing::Test {
  support::FakePictures pictures;
  support::FakeDialogs dialogs;
  support::FakeWindowSystem windows;
  forms::Form dialog{"Form2"};
  forms::ListBox List1{dialog, "List1"};
  ImageView view{List1, pictures, dialogs, windows};

  ImageViewTest() { List1.setItems({"C:\\sea\\p.gif", "gone.gif", ""}); }

  ImageView& open(base::PixelSize size) {
    pictures.add("C:\\sea\\p.gif", size, base::kBlack);
    List1.setListIndex(0);
    windows.show(view);
    return view;
  }
};

TEST_F(ImageViewTest, ThePictureIsShownAtItsActualSizeInTheCorner) {
  open({400, 300});
  EXPECT_EQ(view.Picture1.left(), 0);
  EXPECT_EQ(view.Picture1.top(), 0);
  EXPECT_EQ(view.Picture1.width(), 400 * 15);
  EXPECT_EQ(view.Picture1.height(), 300 * 15);
  EXPECT_EQ(view.width(), 400 * 15 + 120);
  EXPECT_EQ(view.height(), 300 * 15 + 405);
  view.Picture1.image();
  EXPECT_EQ(pictures.drawnSizes, (std::vector<base::PixelSize>{{400, 300}})) << "decoded once";
  EXPECT_EQ(view.caption(), "p.gif");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ImageViewTest, ANarrowPictureOpensInAWindow2000TwipsWide) {
  open({133, 50});  // 1995 twips
  EXPECT_EQ(view.width(), 2000);
  EXPECT_EQ(view.height(), 50 * 15 + 405);
  EXPECT_EQ(view.Picture1.left(), 0);
}

TEST_F(ImageViewTest, APictureOfExactly2000TwipsOpensInAWindowAsWide) {
  struct Finer : support::FakeWindowSystem {
    int twipsPerPixel() const override { return 10; }
  } finer;
  ImageView fine(List1, pictures, dialogs, finer);
  pictures.add("C:\\sea\\p.gif", {200, 50}, base::kBlack);
  List1.setListIndex(0);
  finer.show(fine);
  ASSERT_EQ(fine.Picture1.width(), 2000);
  EXPECT_EQ(fine.width(), 2000);
  finer.unload(fine);
}

TEST_F(ImageViewTest, JustAbove2000TwipsTheBordersAreAdded) {
  open({134, 50});  // 2010 twips
  EXPECT_EQ(view.width(), 2010 + 120);
}

TEST_F(ImageViewTest, APictureLargerThanTheScreenOpensInALargerWindow) {
  open({4000, 3000});
  EXPECT_EQ(view.width(), 4000 * 15 + 120);
  EXPECT_EQ(view.height(), 3000 * 15 + 405);
  EXPECT_EQ(view.left(), 0) << "its title stays within reach";
  EXPECT_EQ(view.top(), 0);
}

TEST_F(ImageViewTest, ASmallerOneStandsInTheMiddle) {
  open({400, 300});
  EXPECT_EQ(view.left(), (windows.screenWidth - view.width()) / 2);
  EXPECT_EQ(view.top(), (windows.screenHeight - view.height()) / 2);
}

TEST_F(ImageViewTest, APictureThatCannotBeLoadedIsReported) {
  List1.setListIndex(1);
  windows.show(view);
  EXPECT_EQ(dialogs.messages, std::vector{support::kCannotLoadImage});
  EXPECT_EQ(windows.unloaded, std::vector<std::string>{"ImageView"}) << "nothing is left to look at";
}

TEST_F(ImageViewTest, BrokenPixelsAreReportedToo) {
  pictures.addBroken("gone.gif", {400, 300});
  List1.setListIndex(1);
  windows.show(view);
  EXPECT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(view.host(), nullptr);
}

TEST_F(ImageViewTest, WithNothingSelectedItIsSmallAndEmptyWithoutAMessage) {
  for (const int selected : {-1, 2}) {
    List1.setListIndex(selected);
    windows.show(view);
    EXPECT_EQ(view.width(), 2000);
    EXPECT_LT(view.height(), 2000);
    EXPECT_EQ(view.Picture1.picture(), nullptr);
    windows.unload(view);
  }
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_TRUE(pictures.opened.empty());
}

TEST_F(ImageViewTest, AClickOnThePictureClosesIt) {
  open({400, 300});
  view.Picture1.onClick();
  EXPECT_EQ(windows.unloaded, std::vector<std::string>{"ImageView"});
  EXPECT_EQ(view.Picture1.picture(), nullptr) << "its pixels are given back";
}

TEST_F(ImageViewTest, EscapeAloneOfTheKeysClosesIt) {
  open({400, 300});
  view.onKeyDown('A');
  EXPECT_TRUE(windows.unloaded.empty());
  view.onKeyDown(27);
  EXPECT_EQ(windows.unloaded.size(), 1U);
  windows.show(view);
  view.Picture1.onKeyDown(27);
  EXPECT_EQ(windows.unloaded.size(), 2U);
}

// The screen of these tests has 1920 by 1080 pixels.
TEST_F(ImageViewTest, APictureLargerThanTheScreenCanBePulledToItsOtherCorner) {
  open({4000, 3000});
  view.userMovedMouse(15000, 15000);
  view.Picture1.onMouseDown({15000, 15000});
  view.userMovedMouse(14000, 13000, true);
  EXPECT_EQ(view.Picture1.left(), -1000);
  EXPECT_EQ(view.Picture1.top(), -2000);
  view.Picture1.onClick();
  EXPECT_TRUE(windows.unloaded.empty()) << "letting go after a drag is no click";
  for (int i = 0; i < 5; ++i) {
    view.Picture1.onMouseDown({20000 - view.Picture1.left(), 12000 - view.Picture1.top()});
    view.userMovedMouse(15, 15, true);
  }
  EXPECT_EQ(view.Picture1.left(), (1920 - 4000) * 15) << "its right edge at the screen's right edge";
  EXPECT_EQ(view.Picture1.top(), (1080 - 3000) * 15);
  for (int i = 0; i < 5; ++i) {
    view.Picture1.onMouseDown({15 - view.Picture1.left(), 15 - view.Picture1.top()});
    view.userMovedMouse(20000, 12000, true);
  }
  EXPECT_EQ(view.Picture1.left(), 0) << "and back";
  EXPECT_EQ(view.Picture1.top(), 0);
  EXPECT_EQ(view.width(), 4000 * 15 + 120) << "the window keeps its size";
}

TEST_F(ImageViewTest, AClickOfAHandThatTremblesStillCloses) {
  open({4000, 3000});
  view.Picture1.onMouseDown({1500, 1500});
  view.userMovedMouse(1545, 1485, true);
  EXPECT_EQ(view.Picture1.left(), 0);
  view.Picture1.onClick();
  EXPECT_EQ(windows.unloaded.size(), 1U);
}

TEST_F(ImageViewTest, APictureThatIsWhollyInSightStaysWhereItIs) {
  open({400, 300});
  view.Picture1.onMouseDown({3000, 3000});
  view.userMovedMouse(1500, 1500, true);
  EXPECT_EQ(view.Picture1.left(), 0);
  view.Picture1.onClick();
  EXPECT_EQ(windows.unloaded.size(), 1U);
}

TEST_F(ImageViewTest, MovingWithoutTheButtonPullsNothing) {
  open({4000, 3000});
  view.Picture1.onMouseDown({15000, 15000});
  view.userMovedMouse(9000, 9000, false);
  view.userMovedMouse(3000, 3000, true);
  EXPECT_EQ(view.Picture1.left(), 0) << "the button went up outside the window";
}

TEST_F(ImageViewTest, AFrameThatIsThickerThanTheRoomForItIsPulledFromUnder) {
  struct ThickFrame : support::FakeWindowSystem {
    base::PixelSize innerSize() const override { return {390, 280}; }
  } thick;
  ImageView framed(List1, pictures, dialogs, thick);
  pictures.add("C:\\sea\\p.gif", {400, 300}, base::kBlack);
  List1.setListIndex(0);
  thick.show(framed);
  framed.Picture1.onMouseDown({3000, 3000});
  framed.userMovedMouse(1000, 1000, true);
  EXPECT_EQ(framed.Picture1.left(), -10 * 15);
  EXPECT_EQ(framed.Picture1.top(), -20 * 15);
  thick.unload(framed);
}

TEST_F(ImageViewTest, AfterALargePictureAnEmptyWindowIsSmallAgain) {
  open({4000, 3000});
  windows.unload(view);
  List1.setListIndex(-1);
  windows.show(view);
  EXPECT_EQ(view.width(), 2000);
  EXPECT_EQ(view.caption(), "Image");
}

}  // namespace
}  // namespace auxwin
