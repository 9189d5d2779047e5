// What the second panel of the status bar says where several things could be said.
#include <gtest/gtest.h>

#include "dialog/messages.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

struct StatusNotes : testing::Test {
  support::SettingsDialogMachine machine;

  StatusNotes() { machine.setPictures({{"C:\\gone.gif", ""}}); }
  static std::string noteOf(const Form2& form) { return form.SS_StatusBar.panelText(2); }
};

TEST_F(StatusNotes, OneStandsThereAtATimeAndTheOneAboutSavingFirst) {
  machine.files.writable = false;
  Form2& form = machine.openDialog().form;
  form.List1.isFaint("C:\\gone.gif");  // as the window asks that paints it
  machine.loop.runFor(100);
  EXPECT_EQ(noteOf(form), kFolderReadOnly);
  form.setSavingNote("");
  EXPECT_EQ(noteOf(form), kMissingImages) << "what stood behind it comes";
  form.setRefusalNote([] { return std::string(kNotSavedInvalidDate); });
  EXPECT_EQ(noteOf(form), kNotSavedInvalidDate);
  form.setRefusalNote(nullptr);
  EXPECT_EQ(noteOf(form), kMissingImages);
  form.setListNote("");
  EXPECT_EQ(noteOf(form), "");
}

TEST_F(StatusNotes, ARefusalWhoseReasonWentMeanwhileDoesNotComeBack) {
  Form2& form = machine.openDialog().form;
  std::string reason = kNotSavedNoBackground;
  form.setSavingNote(kFileReadOnly);
  form.setRefusalNote([&] { return reason; });
  reason.clear();
  form.showNotes();
  reason = kNotSavedNoBackground;
  form.setSavingNote("");
  form.setListNote("");
  EXPECT_EQ(noteOf(form), "");
}

}  // namespace
}  // namespace dialog
