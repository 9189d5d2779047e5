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

}  // namespace
}  // namespace dialog
