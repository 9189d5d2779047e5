// The dialog in front of the hostile picture set: the documented message, and nothing else happens.
#include "support/hostile/hostile_pictures.h"

#include <gtest/gtest.h>

#include "pictures/picture_loader.h"
#include "support/fake_picture_decoder.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using Message = support::FakeDialogs::Message;

struct HostileChoice : testing::Test {
  HostileChoice() {
    machine.setPictures({{"good.gif", ""}});
    machine.pictures.others = &loader;
    for (const auto& picture : all) heads.content[picture.name] = picture.bytes;
  }

  const support::HostilePictures all = support::AllHostilePictures();
  support::SettingsDialogMachine machine;
  support::FakeFiles heads;
  support::FakePictureDecoder none;  // the machine's own decoder refuses everything
  pictures::FilePictureLoader loader{heads, none};
};

TEST_F(HostileChoice, APictureThatCannotBeDrawnGivesTheMessageOnceAndNoThumbnail) {
  SettingsDialog& dialog = machine.openDialog();
  machine.rest();
  machine.dialogs.messages.clear();
  int refusedOnes = 0;
  for (const auto& picture : all) {
    const auto opened = loader.open(picture.name);
    const bool isDrawn = opened && opened->drawnAt({20, 20});
    machine.dialogs.files.push_back(picture.name);
    dialog.form.add.userClicked();
    machine.rest();
    ASSERT_EQ(dialog.form.List1.text(), picture.name);
    const std::vector<Message> expected(isDrawn ? 0 : 1, support::kCannotLoadImage);
    ASSERT_EQ(machine.dialogs.messages, expected) << picture.name;
    ASSERT_EQ(dialog.form.photo1.picture() != nullptr, isDrawn) << picture.name;
    refusedOnes += isDrawn ? 0 : 1;
    machine.dialogs.messages.clear();
    dialog.form.remove.userClicked();
    machine.rest();
    machine.dialogs.messages.clear();
  }
  EXPECT_GT(refusedOnes, 60);
  EXPECT_NE(dialog.form.host(), nullptr) << "the dialog is still open";
}

}  // namespace
}  // namespace dialog
