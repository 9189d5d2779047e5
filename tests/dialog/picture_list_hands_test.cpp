// Several entries of the picture list at a time, its own keys, and taking changes back.
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using support::Listed;
using Rows = std::vector<int>;

struct PictureListHands : testing::Test {
  support::SettingsDialogMachine machine;
  SettingsDialog* dialog = nullptr;

  PictureListHands() {
    machine.setPictures({{"a.gif", "A"}, {"b.gif", "B"}, {"c.gif", "C"}, {"d.gif", "D"}, {"e.gif", "E"}});
    open();
  }
  void open() {
    dialog = &machine.openDialog();
    machine.rest();
    EXPECT_TRUE(machine.dialogs.messages.empty());
  }

  Form2& form() { return dialog->form; }
  forms::ListBox& list() { return form().List1; }
  std::string listed() { return Listed(*dialog); }
  std::string boxes() {
    return form().p_caption.text() + "|" + form().ImagePosition.text() + "|" + form().Text3.text();
  }
  void press(int index, forms::ListHands hands = {}) {
    list().userPressed(index, hands);
    list().userReleased();
    machine.rest();
  }
  void choose(std::initializer_list<int> rows) {
    press(*rows.begin());
    for (const int row : rows) {
      if (row != *rows.begin()) press(row, {.control = true});
    }
  }
};

TEST_F(PictureListHands, RemoveTakesAllThatAreChosen) {
  choose({1, 3});
  form().remove.userClicked();
  EXPECT_EQ(listed(), "a.gif=A;c.gif=C;e.gif=E;");
  EXPECT_EQ(list().chosen(), Rows{0}) << "the one before the first of them";
  EXPECT_EQ(boxes(), "A|Position: 1|Total: 3");
  EXPECT_EQ(machine.pictures.opened.back(), "a.gif");
}

TEST_F(PictureListHands, AllChosenAndDeletedLeaveTheListAsRemoveAllDoes) {
  list().userChoseAll();
  list().onDelete();
  EXPECT_EQ(listed(), "");
  EXPECT_EQ(boxes(), "||Total: 0");
  EXPECT_EQ(form().photo1.picture(), nullptr);
  list().onDelete();
  EXPECT_TRUE(machine.dialogs.messages.empty()) << "a key asks nothing and says nothing";
}

TEST_F(PictureListHands, WithNothingChosenTheButtonsSaySo) {
  press(2);
  press(2, {.control = true});
  EXPECT_EQ(list().chosen(), Rows{});
  form().remove.userClicked();
  form().up.userClicked();
  form().down.userClicked();
  EXPECT_EQ(machine.dialogs.messages.size(), 3U);
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;d.gif=D;e.gif=E;");
}

TEST_F(PictureListHands, UpAndDownMoveAllThatAreChosen) {
  choose({2, 4});
  form().up.userClicked();
  EXPECT_EQ(listed(), "a.gif=A;c.gif=C;b.gif=B;e.gif=E;d.gif=D;");
  EXPECT_EQ(list().chosen(), (Rows{1, 3}));
  EXPECT_EQ(boxes(), "E|Position: 4|Total: 5") << "the keyboard stays on its entry";
  form().up.userClicked();
  form().up.userClicked();
  form().up.userClicked();
  EXPECT_EQ(listed(), "c.gif=C;e.gif=E;a.gif=A;b.gif=B;d.gif=D;") << "at the end they close up";
  for (int i = 0; i < 9; ++i) form().down.userClicked();
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;d.gif=D;c.gif=C;e.gif=E;");
  EXPECT_EQ(list().chosen(), (Rows{3, 4}));
  EXPECT_TRUE(machine.dialogs.messages.empty());
}

TEST_F(PictureListHands, DraggedEntriesGoBeforeAnother) {
  choose({0, 3});
  list().onEntriesDragged(2);
  EXPECT_EQ(listed(), "b.gif=B;a.gif=A;d.gif=D;c.gif=C;e.gif=E;");
  EXPECT_EQ(list().chosen(), (Rows{1, 2}));
  EXPECT_EQ(boxes(), "D|Position: 3|Total: 5");
  list().onEntriesDragged(5);
  EXPECT_EQ(listed(), "b.gif=B;c.gif=C;e.gif=E;a.gif=A;d.gif=D;");
}

TEST_F(PictureListHands, AnEntryThatMakesRoomIsShownAtItsNewPlace) {
  press(1);
  list().userWalkedTo(0);
  form().up.userClicked();
  EXPECT_EQ(listed(), "b.gif=B;a.gif=A;c.gif=C;d.gif=D;e.gif=E;");
  EXPECT_EQ(list().listIndex(), 1);
  EXPECT_EQ(boxes(), "A|Position: 2|Total: 5");
}

TEST_F(PictureListHands, CaptionAndPreviewAreThoseOfTheEntryUnderTheKeyboard) {
  choose({1, 3});
  EXPECT_EQ(boxes(), "D|Position: 4|Total: 5");
  form().p_caption.userTyped("X");
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;d.gif=X;e.gif=E;");
}

TEST_F(PictureListHands, F2GoesToTheCaption) {
  press(2);
  list().onRename();
  EXPECT_EQ(machine.windows.focused, "p_caption");
}

TEST_F(PictureListHands, WhatWasRemovedComesBackWithWhatWasChosen) {
  choose({1, 3});
  list().onDelete();
  list().onUndo();
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;d.gif=D;e.gif=E;");
  EXPECT_EQ(list().chosen(), (Rows{1, 3}));
  EXPECT_EQ(boxes(), "D|Position: 4|Total: 5");
}

TEST_F(PictureListHands, RemovingAllIsTakenBackToo) {
  press(2);
  machine.dialogs.answers.push_back(forms::Answer::Yes);
  form().RemoveAll.userClicked();
  EXPECT_EQ(listed(), "");
  list().onUndo();
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;d.gif=D;e.gif=E;");
  EXPECT_EQ(boxes(), "C|Position: 3|Total: 5");
  EXPECT_NE(form().photo1.picture(), nullptr);
  machine.dialogs.messages.clear();
  list().onUndo();
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;d.gif=D;e.gif=E;") << "nothing is left to take back";
}

TEST_F(PictureListHands, EveryWayOfAddingIsTakenBack) {
  const std::string before = listed();
  machine.dialogs.files.push_back("a.gif");
  form().add.userClicked();
  list().onUndo();
  EXPECT_EQ(listed(), before);
  EXPECT_EQ(boxes(), "A|Position: 1|Total: 5");
  machine.files.content["b.gif"] = "";
  list().onFilesDropped({"b.gif", "b.gif"});
  EXPECT_EQ(list().listCount(), 7);
  list().onUndo();
  EXPECT_EQ(listed(), before);
  machine.files.listed["C:\\"] = {"p1.gif", "p2.gif"};
  machine.pictures.add("C:\\p2.gif", {4, 3}, base::kBlack);
  machine.windows.whileModal = [](forms::Form& modal) {
    static_cast<auxwin::MultiFiles&>(modal).Command1.userClicked();
  };
  form().FolderCommand.userClicked();
  EXPECT_EQ(list().listCount(), 7);
  list().onUndo();
  EXPECT_EQ(listed(), before);
  EXPECT_EQ(boxes(), "E|Position: 5|Total: 5");
}

TEST_F(PictureListHands, ACaptionComesBackAsItWasBeforeTheTyping) {
  press(1);
  form().p_caption.userTyped("At");
  form().p_caption.userTyped("At sea");
  press(2);
  form().caption_clear.userClicked();
  list().onUndo();
  EXPECT_EQ(boxes(), "C|Position: 3|Total: 5");
  list().onUndo();
  EXPECT_EQ(boxes(), "B|Position: 2|Total: 5");
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;d.gif=D;e.gif=E;");
}

TEST_F(PictureListHands, TheTypingIntoACaptionThatWasLeftAndComeBackToIsAnother) {
  press(1);
  form().p_caption.userTyped("first");
  press(2);
  press(1);
  form().p_caption.userTyped("second");
  list().onUndo();
  EXPECT_EQ(form().p_caption.text(), "first");
}

TEST_F(PictureListHands, TheToolTipIsTheWholePathOfTheEntryUnderThePointer) {
  list().userPointedAt(3);
  EXPECT_EQ(list().toolTip(), "d.gif");
  list().userPointedAt(-1);
  EXPECT_EQ(list().toolTip(), "Loaded images");
}

TEST_F(PictureListHands, ARefusedSaveStandsInTheStatusBarUntilItsReasonIsGone) {
  list().userChoseAll();
  list().onDelete();
  EXPECT_EQ(form().SS_StatusBar.panelText(2), "");
  form().Ok.userClicked();
  EXPECT_EQ(machine.dialogs.messages.size(), 1U) << "it is told as ever";
  EXPECT_EQ(form().SS_StatusBar.panelText(2), "Not saved: there are no images.");
  list().onUndo();
  EXPECT_EQ(form().SS_StatusBar.panelText(2), "");
  form().backgroundCustomImage.userClicked();
  form().Ok.userClicked();
  EXPECT_EQ(form().SS_StatusBar.panelText(2), "Not saved: no background image is chosen.");
  form().backgroundColor.userClicked();
  EXPECT_EQ(form().SS_StatusBar.panelText(2), "");
  form().record.countdownDay = "31";
  form().Ok.userClicked();
  EXPECT_EQ(form().SS_StatusBar.panelText(2), "Not saved: the countdown date is invalid.");
  form().dayCombo.userSelected(0);
  EXPECT_EQ(form().SS_StatusBar.panelText(2), "");
}

TEST_F(PictureListHands, HalfOfThirtyThousandGoAndComeBackInAFewSteps) {
  list().setItems(std::vector<std::string>(30'000, "a.gif"));
  form().photo_caption.setItems(std::vector<std::string>(30'000));
  Rows half;
  for (int i = 0; i < 30'000; i += 2) half.push_back(i);
  list().choose(half, 0);
  machine.windows.listEdits = 0;
  list().onDelete();
  EXPECT_EQ(list().listCount(), 15'000);
  list().onUndo();
  EXPECT_EQ(list().listCount(), 30'000);
  EXPECT_EQ(list().chosen().size(), 15'000U);
  form().up.userClicked();
  EXPECT_LE(machine.windows.listEdits, 8) << "the window is not told of each";
}

TEST(PictureListPresence, WhatTheShownEntriesNameIsLookedForBesideTheDialog) {
  support::SettingsDialogMachine machine;
  machine.folders->addFile("C:\\there.gif");
  machine.setPictures({{"C:\\there.gif", ""}, {"C:\\gone.gif", ""}});
  Form2& form = machine.openDialog().form;
  forms::ListBox& list = form.List1;
  EXPECT_FALSE(list.isFaint("C:\\gone.gif")) << "nobody waits for the disk";
  EXPECT_FALSE(list.isFaint("C:\\there.gif"));
  machine.windows.changes.clear();
  machine.loop.runFor(100);
  EXPECT_TRUE(list.isFaint("C:\\gone.gif"));
  EXPECT_FALSE(list.isFaint("C:\\there.gif"));
  EXPECT_EQ(std::ranges::count(machine.windows.changes,
                               std::pair<std::string, forms::Change>("List1", forms::Change::Colors)),
            1);
  EXPECT_EQ(form.SS_StatusBar.panelText(2), "Images in gray cannot be found.");
  list.userPointedAt(1);
  EXPECT_EQ(list.toolTip(), "C:\\gone.gif\r\nThis image cannot be found.");
  list.setListIndex(1);
  list.onDelete();
  EXPECT_EQ(form.SS_StatusBar.panelText(2), "");
  list.onUndo();
  EXPECT_EQ(form.SS_StatusBar.panelText(2), "Images in gray cannot be found.");
}

}  // namespace
}  // namespace dialog
