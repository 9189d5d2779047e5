// The dialog with loadAhead=1: nothing in it waits for a disk.
#include <gtest/gtest.h>

#include <optional>

#include "dialog/messages.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

class PreviewsAhead : public testing::Test {
 protected:
  PreviewsAhead() { machine.set("extras", "loadAhead", "1"); }

  SettingsDialog& open() {
    machine.setPictures({{"C:\\a.jpg", ""}, {"C:\\b.jpg", ""}, {"C:\\c.jpg", ""}});
    return machine.openDialog();
  }
  void loadingTakes(std::optional<int> ms) {
    machine.workers.delayMs = [ms] { return ms; };
  }

  support::SettingsDialogMachine machine;
};

TEST_F(PreviewsAhead, WithoutTheKeyThePreviewIsThereAtOnce) {
  machine.drop("extras", "loadAhead");
  EXPECT_TRUE(open().form.photo1.picture());
  EXPECT_EQ(machine.workers.made, 0);
}

TEST_F(PreviewsAhead, ThePreviewFollowsWhenItIsReady) {
  SettingsDialog& dialog = open();
  EXPECT_FALSE(dialog.form.photo1.picture());
  machine.loop.runFor(50);
  EXPECT_TRUE(dialog.form.photo1.picture());
}

TEST_F(PreviewsAhead, ARowThatWasPassedIsDropped) {
  loadingTakes(300);
  SettingsDialog& dialog = open();
  dialog.form.List1.setListIndex(1);
  machine.rest();
  dialog.form.List1.setListIndex(2);
  machine.rest();
  machine.loop.runFor(2000);
  EXPECT_EQ(machine.pictures.opened, (std::vector<std::string>{"C:\\a.jpg", "C:\\c.jpg"}));
  EXPECT_TRUE(dialog.form.photo1.picture());
}

TEST_F(PreviewsAhead, APictureThatIsTakenFromTheListMeanwhileIsNotShown) {
  loadingTakes(300);
  SettingsDialog& dialog = open();
  machine.loop.runFor(100);
  machine.dialogs.answers.push_back(forms::Answer::Yes);
  dialog.form.RemoveAll.userClicked();
  machine.loop.runFor(2000);
  EXPECT_FALSE(dialog.form.photo1.picture());
}

TEST_F(PreviewsAhead, APictureThatCannotBeLoadedIsToldWhenThatIsKnown) {
  machine.setPictures({{"C:\\a.jpg", ""}});
  machine.pictures.addBroken("C:\\a.jpg", {8, 6});
  SettingsDialog& dialog = machine.openDialog();
  EXPECT_TRUE(machine.dialogs.messages.empty());
  machine.loop.runFor(50);
  EXPECT_EQ(machine.dialogs.messages.size(), 1U);
  EXPECT_FALSE(dialog.form.photo1.picture());
}

TEST_F(PreviewsAhead, ADialogThatIsClosedWhileItsPictureHangsIsGoneAtOnce) {
  loadingTakes(std::nullopt);
  SettingsDialog& dialog = open();
  machine.loop.runFor(100);
  dialog.form.Cancel_Click();
  EXPECT_TRUE(machine.loop.isQuitting());
}

TEST_F(PreviewsAhead, TheBackgroundsPictureComesFromTheLoaderToo) {
  machine.pictures.add("C:\\sky.bmp", {16, 12}, base::Rgb(0, 0, 255));
  machine.set("background", "backgroundImage", "C:\\sky.bmp");
  SettingsDialog& dialog = open();
  EXPECT_FALSE(dialog.form.Image1.picture());
  machine.loop.runFor(100);
  EXPECT_TRUE(dialog.form.Image1.picture());
}

TEST_F(PreviewsAhead, ABackgroundThatCannotBeLoadedIsToldWhenThatIsKnown) {
  machine.set("background", "backgroundImage", "C:\\missing.bmp");
  SettingsDialog& dialog = open();
  EXPECT_TRUE(machine.dialogs.messages.empty());
  machine.loop.runFor(100);
  EXPECT_EQ(machine.dialogs.messages.size(), 1U);
  EXPECT_FALSE(dialog.form.Image1.picture());
}

TEST_F(PreviewsAhead, TheViewerOpensAtOnceAndTakesThePicturesSizeWhenItIsThere) {
  SettingsDialog& dialog = open();
  machine.loop.runFor(100);
  loadingTakes(3000);
  dialog.EnlargeCommand_Click();
  EXPECT_TRUE(dialog.viewer.host());
  EXPECT_EQ(dialog.viewer.caption(), "a.jpg");
  EXPECT_FALSE(dialog.viewer.Picture1.picture());
  EXPECT_EQ(dialog.viewer.width(), 2000);
  machine.loop.runFor(3010);
  ASSERT_TRUE(dialog.viewer.Picture1.picture());
  EXPECT_EQ(dialog.viewer.Picture1.picture()->size(), (base::PixelSize{400, 100}));
  EXPECT_EQ(dialog.viewer.width(), 400 * 15 + 120);
  EXPECT_EQ(machine.pictures.drawnSizes.back(), (base::PixelSize{400, 100})) << "decoded beside the thread";
}

TEST_F(PreviewsAhead, AViewerThatIsClosedMeanwhileGetsNothingAndAnotherOneItsOwn) {
  SettingsDialog& dialog = open();
  machine.loop.runFor(100);
  loadingTakes(3000);
  dialog.EnlargeCommand_Click();
  machine.loop.runFor(100);
  dialog.viewer.Picture1_Click();
  EXPECT_FALSE(dialog.viewer.host());
  machine.loop.runFor(5000);
  EXPECT_FALSE(dialog.viewer.Picture1.picture());
  EXPECT_TRUE(machine.dialogs.messages.empty());
  dialog.form.List1.setListIndex(2);
  dialog.EnlargeCommand_Click();
  machine.loop.runFor(10'000);
  ASSERT_TRUE(dialog.viewer.Picture1.picture());
  EXPECT_EQ(dialog.viewer.Picture1.picture()->size(), (base::PixelSize{400, 120}));
}

TEST_F(PreviewsAhead, AViewerWhosePictureCannotBeLoadedTellsAndCloses) {
  SettingsDialog& dialog = open();
  machine.loop.runFor(100);
  machine.pictures.addBroken("C:\\a.jpg", {8, 6});
  dialog.EnlargeCommand_Click();
  EXPECT_TRUE(machine.dialogs.messages.empty());
  machine.loop.runFor(100);
  ASSERT_EQ(machine.dialogs.messages.size(), 1U);
  EXPECT_EQ(machine.dialogs.messages[0].text, auxwin::kCannotLoadImage);
  EXPECT_FALSE(dialog.viewer.host());
}

TEST_F(PreviewsAhead, AViewerWhosePictureHangsHoldsUpNeitherItsOwnEndNorTheDialogs) {
  loadingTakes(std::nullopt);
  SettingsDialog& dialog = open();
  dialog.EnlargeCommand_Click();
  machine.loop.runFor(500);
  EXPECT_TRUE(dialog.viewer.host());
  dialog.form.Cancel_Click();
  EXPECT_TRUE(machine.loop.isQuitting());
  EXPECT_FALSE(dialog.viewer.host());
}

TEST_F(PreviewsAhead, BackgroundPreviewAndViewerAllComeThoughTheLoaderTakesTwoAtATime) {
  machine.pictures.add("C:\\sky.bmp", {16, 12}, base::Rgb(0, 0, 255));
  machine.set("background", "backgroundImage", "C:\\sky.bmp");
  loadingTakes(200);
  SettingsDialog& dialog = open();
  dialog.EnlargeCommand_Click();
  machine.loop.runFor(1000);
  EXPECT_TRUE(dialog.form.Image1.picture());
  EXPECT_TRUE(dialog.form.photo1.picture());
  EXPECT_TRUE(dialog.viewer.Picture1.picture());
}

TEST_F(PreviewsAhead, WithoutTheKeyTheViewerLoadsOnTheSpot) {
  machine.drop("extras", "loadAhead");
  SettingsDialog& dialog = open();
  dialog.EnlargeCommand_Click();
  EXPECT_TRUE(dialog.viewer.Picture1.picture());
  EXPECT_EQ(machine.workers.made, 0);
}

}  // namespace
}  // namespace dialog
