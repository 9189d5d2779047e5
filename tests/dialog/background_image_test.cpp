#include "dialog/background_image.h"

#include <gtest/gtest.h>

#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using Message = support::FakeDialogs::Message;

struct BackgroundImageTest : testing::Test {
  support::SettingsDialogMachine machine;

  SettingsDialog& open() {
    machine.set("background", "backEffect", "2");
    machine.pictures.add("sea.jpg", {400, 300}, base::kBlack);
    return machine.openDialog();
  }
};

TEST_F(BackgroundImageTest, AChosenImageIsKeptShownAndPreviewed) {
  Form2& form = open().form;
  machine.dialogs.files.push_back("sea.jpg");
  form.addBackImg.userClicked();
  EXPECT_EQ(form.record.backgroundImage, "sea.jpg");
  EXPECT_EQ(form.backgroundImageFile.text(), "sea.jpg");
  ASSERT_NE(form.Image1.picture(), nullptr);
  EXPECT_EQ(form.Image1.picture()->size(), (base::PixelSize{400, 300}));
  EXPECT_EQ(machine.dialogs.fileRequests.at(0).title, "Select a file to open");
}

TEST_F(BackgroundImageTest, ASecondOneIsRefusedUntilTheFirstIsRemoved) {
  machine.set("background", "backgroundImage", "old.jpg");
  machine.pictures.add("old.jpg", {40, 30}, base::kBlack);
  Form2& form = open().form;
  form.addBackImg.userClicked();
  EXPECT_EQ(machine.dialogs.messages,
            (std::vector<Message>{{"You can only display 1 background image.", 48}}));
  EXPECT_TRUE(machine.dialogs.fileRequests.empty());
  form.removeBackImg.userClicked();
  EXPECT_EQ(form.record.backgroundImage, "");
  EXPECT_EQ(form.backgroundImageFile.text(), "");
  EXPECT_EQ(form.Image1.picture(), nullptr);
  machine.dialogs.files.push_back("sea.jpg");
  form.addBackImg.userClicked();
  EXPECT_EQ(form.record.backgroundImage, "sea.jpg");
  EXPECT_EQ(machine.dialogs.messages.size(), 1U);
}

TEST_F(BackgroundImageTest, ThereMustBeOneToRemove) {
  Form2& form = open().form;
  form.removeBackImg.userClicked();
  EXPECT_EQ(machine.dialogs.messages, (std::vector<Message>{{"Nothing to remove.", 48}}));
}

TEST_F(BackgroundImageTest, ACancelChangesNothing) {
  Form2& form = open().form;
  form.addBackImg.userClicked();
  EXPECT_EQ(form.record.backgroundImage, "");
  EXPECT_TRUE(machine.dialogs.messages.empty());
}

TEST_F(BackgroundImageTest, AFileThatCannotBeLoadedIsKeptWithoutAPreviewAndReported) {
  Form2& form = open().form;
  machine.dialogs.files.push_back("broken.jpg");
  form.addBackImg.userClicked();
  EXPECT_EQ(form.record.backgroundImage, "broken.jpg");
  EXPECT_EQ(form.backgroundImageFile.text(), "broken.jpg");
  EXPECT_EQ(form.Image1.picture(), nullptr);
  EXPECT_EQ(
      machine.dialogs.messages,
      (std::vector<Message>{{"Could not load Background Image correctly. Please reload a new image.", 48}}));
}

TEST_F(BackgroundImageTest, PixelsThatCannotBeDecodedAreReportedToo) {
  Form2& form = open().form;
  machine.pictures.addBroken("broken.jpg", {40, 30});
  machine.dialogs.files.push_back("broken.jpg");
  form.addBackImg.userClicked();
  EXPECT_EQ(form.record.backgroundImage, "broken.jpg");
  EXPECT_EQ(form.Image1.picture(), nullptr);
  EXPECT_EQ(machine.dialogs.messages.size(), 1U);
}

}  // namespace
}  // namespace dialog
