#include "dialog/picture_list.h"

#include <gtest/gtest.h>

#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using support::Listed;
using Message = support::FakeDialogs::Message;

const Message kNothingSelected{"Nothing was selected to remove.", 48};
const Message kTooMany{"It is recommended that the screen saver should have less than 700 loaded images.",
                       48};
const Message kLoadFirst{"An image must be loaded first.", 48};
const Message kReallyRemoveAll{"Do you really want to remove all loaded images?", 36};

struct PictureListTest : testing::Test {
  support::SettingsDialogMachine machine;
  SettingsDialog* dialog = nullptr;

  // Opens the dialog on pictures a, b, c with captions A, B, C; the first is selected.
  SettingsDialog& openThree() {
    machine.setPictures({{"a.gif", "A"}, {"b.gif", "B"}, {"c.gif", "C"}});
    return open();
  }
  SettingsDialog& open() {
    dialog = &machine.openDialog();
    machine.rest();
    EXPECT_TRUE(machine.dialogs.messages.empty());
    return *dialog;
  }
  // Opens the dialog on that many pictures that can be loaded.
  SettingsDialog& openMany(int count) {
    machine.pictures.add("p.gif", {40, 30}, base::kBlack);
    for (int i = 0; i < count; ++i) machine.set("images", std::to_string(i), "p.gif");
    machine.set("total", "total", std::to_string(count));
    return open();
  }

  Form2& form() { return dialog->form; }
  std::string listed() { return Listed(*dialog); }
  std::vector<Message>& messages() { return machine.dialogs.messages; }
  void selectByUser(int index) {
    form().List1.userSelected(index);
    machine.rest();
  }
  // The caption, position and total boxes.
  std::string boxes() {
    return form().p_caption.text() + "|" + form().ImagePosition.text() + "|" + form().Text3.text();
  }
  void choose(const std::string& path) { machine.dialogs.files.push_back(path); }
  // The size in which the thumbnail was drawn last.
  base::PixelSize lastDrawn() {
    return machine.pictures.drawnSizes.empty() ? base::PixelSize{} : machine.pictures.drawnSizes.back();
  }
};

TEST_F(PictureListTest, OpeningSelectsTheFirstPictureAndShowsIt) {
  openThree();
  EXPECT_EQ(form().List1.listIndex(), 0);
  EXPECT_EQ(boxes(), "A|Position: 1|Total: 3");
  EXPECT_EQ(machine.pictures.opened, std::vector<std::string>{"a.gif"});
  EXPECT_NE(form().photo1.picture(), nullptr);
}

TEST_F(PictureListTest, ASelectedPictureShowsPositionThumbnailAndCaption) {
  openThree();
  selectByUser(2);
  EXPECT_EQ(boxes(), "C|Position: 3|Total: 3");
  EXPECT_EQ(machine.pictures.opened.back(), "c.gif");
  // 400 by 120 in a box of 192 by 206 pixels with a border.
  EXPECT_EQ(lastDrawn(), (base::PixelSize{190, 57}));
  EXPECT_EQ(form().photo1.picture()->size(), form().photo1.scaleSize());
  EXPECT_EQ(form().photo.picture()->size(), (base::PixelSize{400, 120})) << "measured at its full size";
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;");
}

TEST_F(PictureListTest, APictureThatCannotBeLoadedIsReportedWhenItIsSelected) {
  machine.setPictures({{"a.gif", "A"}, {"b.gif", "B"}});
  machine.set("images", "1", "gone.gif");
  open();
  form().List1.userSelected(1);
  EXPECT_EQ(messages(), std::vector<Message>{support::kCannotLoadImage});
  EXPECT_EQ(boxes(), "B|Position: 2|Total: 2") << "position and caption are shown before the message";
  EXPECT_EQ(form().photo1.picture(), nullptr) << "not the picture of another row";
  machine.rest();
  EXPECT_EQ(messages().size(), 1U);
}

TEST_F(PictureListTest, APictureWhosePixelsAreBrokenIsReportedToo) {
  openThree();
  machine.pictures.addBroken("b.gif", {400, 300});
  selectByUser(1);
  EXPECT_EQ(messages(), std::vector<Message>{support::kCannotLoadImage});
}

TEST_F(PictureListTest, AnEntryWithoutAPathShowsNothingAndIsNoFault) {
  machine.setPictures({{"a.gif", "A"}});
  machine.set("total", "total", "2");
  open();
  selectByUser(1);
  EXPECT_TRUE(messages().empty());
  EXPECT_EQ(form().photo1.picture(), nullptr);
  EXPECT_EQ(form().ImagePosition.text(), "Position: 2");
}

TEST_F(PictureListTest, RowsThatAHeldArrowKeyPassesAreNotDecoded) {
  openMany(5000);
  for (int i = 0; i < 5000; ++i) {
    machine.pictures.add(std::to_string(i) + ".gif", {400, 300}, base::kBlack);
    form().List1.setItem(i, std::to_string(i) + ".gif");
  }
  machine.pictures.opened.clear();
  machine.windows.changes.clear();
  for (int i = 1; i < 5000; ++i) {
    form().List1.userSelected(i);
    EXPECT_EQ(form().ImagePosition.text(), "Position: " + std::to_string(i + 1));
    machine.loop.runFor(33);
  }
  EXPECT_EQ(machine.pictures.opened, std::vector<std::string>{"1.gif"}) << "the row that came out of rest";
  machine.rest();
  EXPECT_EQ(machine.pictures.opened, (std::vector<std::string>{"1.gif", "4999.gif"}));
  int drawn = 0;
  for (const auto& [control, change] : machine.windows.changes) {
    drawn += control == "photo1" && change == forms::Change::Picture;
  }
  EXPECT_EQ(drawn, 2) << "the old thumbnail stands until the new one is there";
}

TEST_F(PictureListTest, OnlyTheRowOnWhichAHeldArrowKeyEndsIsReported) {
  machine.setPictures({{"a.gif", ""}, {"b.gif", ""}});
  for (int i = 2; i < 20; ++i) machine.set("images", std::to_string(i), "broken.gif");
  machine.set("total", "total", "20");
  open();
  for (int i = 1; i < 20; ++i) {
    form().List1.userSelected(i);
    machine.loop.runFor(33);
  }
  EXPECT_TRUE(messages().empty());
  machine.rest();
  EXPECT_EQ(messages(), std::vector<Message>{support::kCannotLoadImage});
  machine.rest();
  EXPECT_EQ(messages().size(), 1U);
}

TEST_F(PictureListTest, ARunThatEndsWhereAPictureIsGoneByThenShowsNothing) {
  openThree();
  form().List1.userSelected(1);
  form().List1.userSelected(2);
  machine.dialogs.answers.push_back(forms::Answer::Yes);
  form().RemoveAll.userClicked();
  machine.rest();
  EXPECT_EQ(messages(), std::vector<Message>{kReallyRemoveAll});
  EXPECT_EQ(form().photo1.picture(), nullptr);
}

TEST_F(PictureListTest, TheOpenFileDialogIsAskedAsDocumented) {
  openThree();
  form().add.userClicked();
  ASSERT_EQ(machine.dialogs.fileRequests.size(), 1U);
  const forms::OpenFileRequest& request = machine.dialogs.fileRequests[0];
  EXPECT_EQ(request.filter,
            "Image files (*.gif;*.jpg;*.bmp)|*.gif;*.jpg;*.bmp|CompuServe Files (*.gif)|*.gif|Jpeg Files "
            "(*.jpg)|*.jpg|Jif files (*.jif)|*.jif|Windows Bitmap Files (*.bmp)|*.bmp|Windows DIB files "
            "(*.dib)|*.dib");
  EXPECT_EQ(request.title, "Select a file to open");
  EXPECT_EQ(request.flags, 0x1004U);
}

TEST_F(PictureListTest, ACancelledOpenFileDialogChangesAndShowsNothing) {
  openThree();
  selectByUser(1);
  const std::string before = listed() + boxes();
  form().add.userClicked();
  EXPECT_EQ(listed() + boxes(), before);
  EXPECT_EQ(form().List1.listIndex(), 1);
  EXPECT_TRUE(messages().empty());
}

TEST_F(PictureListTest, AnAddedPictureComesLastWithoutACaptionAndIsSelected) {
  openThree();
  machine.pictures.add("new.jpg", {300, 300}, base::kBlack);
  choose("new.jpg");
  form().add.userClicked();
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;new.jpg=;");
  EXPECT_EQ(form().List1.listIndex(), 3);
  EXPECT_EQ(boxes(), "|Position: 4|Total: 4");
  EXPECT_EQ(machine.pictures.opened.back(), "new.jpg");
  EXPECT_EQ(lastDrawn(), (base::PixelSize{190, 190}));
  EXPECT_EQ(machine.pictures.opened.size(), 2U) << "decoded once, though it is selected and then shown";
}

TEST_F(PictureListTest, AddingDoesNotLookIntoTheFileButSelectingItReportsIt) {
  openThree();
  choose("broken.gif");
  form().add.userClicked();
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;broken.gif=;");
  EXPECT_EQ(messages(), std::vector<Message>{support::kCannotLoadImage}) << "once, by the selection";
}

TEST_F(PictureListTest, AnAddedPictureIsShownAtOnceEvenWhileTheSelectionWasRunning) {
  openThree();
  form().List1.userSelected(1);
  form().List1.userSelected(2);
  machine.pictures.add("new.jpg", {300, 300}, base::kBlack);
  choose("new.jpg");
  form().add.userClicked();
  EXPECT_EQ(machine.pictures.opened.back(), "new.jpg");
  EXPECT_EQ(lastDrawn(), (base::PixelSize{190, 190}));
}

TEST_F(PictureListTest, ThePictureThatMakesItMoreThan700BringsTheAdviceOnce) {
  openMany(699);
  choose("p.gif");
  form().add.userClicked();
  EXPECT_EQ(form().Text3.text(), "Total: 700");
  EXPECT_TRUE(messages().empty());
  choose("p.gif");
  form().add.userClicked();
  EXPECT_EQ(messages(), std::vector<Message>{kTooMany});
  EXPECT_EQ(form().Text3.text(), "Total: 701") << "the picture is added all the same";
  choose("p.gif");
  form().add.userClicked();
  EXPECT_EQ(form().Text3.text(), "Total: 702");
  EXPECT_EQ(messages().size(), 1U);
}

// What stands when somebody is told something, or a picture is selected.
TEST_F(PictureListTest, AnAddedPictureIsSelectedThenCountedThenAdvisedOn) {
  struct Watching : support::FakeDialogs {
    std::function<void(const std::string&)> onMessage;
    forms::Answer messageBox(const std::string& text, std::uint32_t style) override {
      onMessage(text);
      return FakeDialogs::messageBox(text, style);
    }
  } dialogs;
  machine.set("total", "total", "700");
  machine.writeSettings();
  SettingsDialog watched({machine.files, machine.ansi, machine.pictures, dialogs, machine.windows},
                         machine.loop, machine.shell, machine.kProgramFolder, nullptr);
  Form2& form = watched.form;
  watched.show();
  machine.pictures.add("new.gif", {4, 3}, base::kBlack);
  std::vector<std::string> steps;
  const auto note = [&](const std::string& what) {
    steps.push_back(what + ": entry " + std::to_string(form.List1.listIndex() + 1) + ", " +
                    form.Text3.text());
  };
  form.List1.onClick = [&, click = form.List1.onClick] {
    note("selected");
    click();
  };
  dialogs.onMessage = [&](const std::string&) { note("advised"); };
  dialogs.files.push_back("new.gif");
  form.add.userClicked();
  EXPECT_EQ(steps,
            (std::vector<std::string>{"selected: entry 701, Total: 700", "advised: entry 701, Total: 701"}));
}

TEST_F(PictureListTest, TheAdviceComesForTheFirstAddedPictureOfAListThatWasLong) {
  openMany(900);
  EXPECT_TRUE(messages().empty());
  choose("p.gif");
  form().add.userClicked();
  EXPECT_EQ(messages(), std::vector<Message>{kTooMany});
}

TEST_F(PictureListTest, RemovingAPictureSelectsTheOneBefore) {
  openThree();
  selectByUser(2);
  form().remove.userClicked();
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;");
  EXPECT_EQ(form().List1.listIndex(), 1);
  EXPECT_EQ(boxes(), "B|Position: 2|Total: 2");
  EXPECT_EQ(machine.pictures.opened.back(), "b.gif");
}

TEST_F(PictureListTest, RemovingTheFirstPictureSelectsTheNewFirst) {
  openThree();
  form().remove.userClicked();
  EXPECT_EQ(listed(), "b.gif=B;c.gif=C;");
  EXPECT_EQ(form().List1.listIndex(), 0);
  EXPECT_EQ(boxes(), "B|Position: 1|Total: 2");
  EXPECT_EQ(machine.pictures.opened.back(), "b.gif");
}

TEST_F(PictureListTest, RemovingTheOnlyPictureEmptiesEverything) {
  machine.setPictures({{"a.gif", "A"}});
  open();
  form().remove.userClicked();
  EXPECT_EQ(listed(), "");
  EXPECT_EQ(boxes(), "||Total: 0");
  EXPECT_EQ(form().photo1.picture(), nullptr);
  EXPECT_EQ(form().List1.listIndex(), -1);
  EXPECT_TRUE(messages().empty());
}

TEST_F(PictureListTest, NothingSelectedCannotBeRemovedOrMoved) {
  open();
  form().remove.userClicked();
  form().up.userClicked();
  form().down.userClicked();
  EXPECT_EQ(messages(), (std::vector<Message>{kNothingSelected, kNothingSelected, kNothingSelected}));
}

TEST_F(PictureListTest, AnEntryWithoutAPathCountsAsNothingSelected) {
  machine.setPictures({{"a.gif", "A"}});
  machine.set("total", "total", "2");
  open();
  selectByUser(1);
  form().remove.userClicked();
  EXPECT_EQ(messages(), std::vector<Message>{kNothingSelected});
  EXPECT_EQ(form().List1.listCount(), 2);
}

TEST_F(PictureListTest, AnEntryWithoutAPathCanBeMoved) {
  machine.setPictures({{"a.gif", "A"}});
  machine.set("total", "total", "2");
  machine.set("caption", "1", "B");
  open();
  selectByUser(1);
  form().up.userClicked();
  EXPECT_EQ(listed(), "=B;a.gif=A;");
  EXPECT_EQ(form().List1.listIndex(), 0);
  form().down.userClicked();
  EXPECT_EQ(listed(), "a.gif=A;=B;");
  EXPECT_TRUE(messages().empty());
}

TEST_F(PictureListTest, TheStatusBarSaysFromWhereOnTheShowCannotUseThem) {
  openMany(32767);
  EXPECT_EQ(form().SS_StatusBar.panelText(2), "");
  machine.dialogs.files.push_back("p.gif");
  form().add.userClicked();
  EXPECT_EQ(form().SS_StatusBar.panelText(2), "The show can use 32,767 pictures at most.");
  form().remove.userClicked();
  EXPECT_EQ(form().SS_StatusBar.panelText(2), "");
}

TEST_F(PictureListTest, RemovingAllAsksFirst) {
  openThree();
  machine.dialogs.answers.push_back(forms::Answer::No);
  form().RemoveAll.userClicked();
  EXPECT_EQ(messages(), std::vector<Message>{kReallyRemoveAll});
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;");
  machine.dialogs.answers.push_back(forms::Answer::Yes);
  form().RemoveAll.userClicked();
  EXPECT_EQ(listed(), "");
  EXPECT_EQ(boxes(), "||Total: 0");
  EXPECT_EQ(form().photo1.picture(), nullptr);
}

TEST_F(PictureListTest, APictureTakesItsCaptionAlongWhenItIsMoved) {
  openThree();
  selectByUser(2);
  form().up.userClicked();
  EXPECT_EQ(listed(), "a.gif=A;c.gif=C;b.gif=B;");
  EXPECT_EQ(form().List1.listIndex(), 1);
  EXPECT_EQ(boxes(), "C|Position: 2|Total: 3");
  form().up.userClicked();
  EXPECT_EQ(listed(), "c.gif=C;a.gif=A;b.gif=B;");
  form().down.userClicked();
  form().down.userClicked();
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;") << "moved to the end as well";
  EXPECT_EQ(form().List1.listIndex(), 2);
  EXPECT_EQ(boxes(), "C|Position: 3|Total: 3");
  EXPECT_TRUE(messages().empty());
  EXPECT_EQ(machine.pictures.opened.back(), "c.gif");
  EXPECT_EQ(machine.pictures.opened.size(), 2U) << "the thumbnail that is shown is not decoded anew";
}

TEST_F(PictureListTest, TheEndsOfTheListAreTheEndsOfMoving) {
  openThree();
  form().up.userClicked();
  EXPECT_EQ(form().List1.listIndex(), 0);
  selectByUser(2);
  form().down.userClicked();
  EXPECT_EQ(form().List1.listIndex(), 2);
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;");
  EXPECT_TRUE(messages().empty());
}

TEST_F(PictureListTest, WhatIsTypedIsTheCaptionOfTheSelectedPicture) {
  openThree();
  selectByUser(1);
  form().p_caption.userTyped("At the sea");
  EXPECT_EQ(listed(), "a.gif=A;b.gif=At the sea;c.gif=C;");
  form().p_caption.userTyped("");
  EXPECT_EQ(listed(), "a.gif=A;b.gif=;c.gif=C;");
}

TEST_F(PictureListTest, ClearingTheCaptionEmptiesBoxAndEntry) {
  openThree();
  form().caption_clear.userClicked();
  EXPECT_EQ(listed(), "a.gif=;b.gif=B;c.gif=C;");
  EXPECT_EQ(form().p_caption.text(), "");
}

TEST_F(PictureListTest, ACaptionWithoutAnyPictureIsRefusedAndTakenBack) {
  open();
  form().p_caption.userTyped("x");
  EXPECT_EQ(messages(), std::vector<Message>{kLoadFirst});
  EXPECT_EQ(form().p_caption.text(), "");
  form().caption_clear.userClicked();
  EXPECT_EQ(messages().size(), 1U);
}

TEST_F(PictureListTest, ACaptionWhileNoneOfThePicturesIsSelectedIsNotStored) {
  openThree();
  form().List1.setListIndex(-1);
  form().p_caption.userTyped("x");
  form().caption_clear.userClicked();
  EXPECT_EQ(listed(), "a.gif=A;b.gif=B;c.gif=C;");
  EXPECT_TRUE(messages().empty());
}

TEST_F(PictureListTest, NoMoreCharactersCanBeTypedThanTheFileHolds) {
  open();
  EXPECT_EQ(form().p_caption.maxLength, 254);
}

TEST_F(PictureListTest, AfterALoadingThatFailedPicturesCanBeAddedAllTheSame) {
  machine.dropSection("total");
  dialog = &machine.openDialog();
  messages().clear();
  choose("p.gif");
  machine.pictures.add("p.gif", {40, 30}, base::kBlack);
  form().add.userClicked();
  EXPECT_EQ(listed(), "p.gif=;");
  EXPECT_EQ(boxes(), "|Position: 1|Total: 1");
}

TEST_F(PictureListTest, EnterInTheCaptionGoesToTheNextPicture) {
  openThree();
  form().p_caption.userTyped("At the sea");
  form().p_caption.onEnter();
  EXPECT_EQ(form().List1.listIndex(), 1);
  EXPECT_EQ(form().p_caption.text(), "B");
  form().p_caption.onEnter();
  form().p_caption.onEnter();
  EXPECT_EQ(form().List1.listIndex(), 2) << "behind the last there is none";
  EXPECT_EQ(listed(), "a.gif=At the sea;b.gif=B;c.gif=C;");
  EXPECT_TRUE(machine.windows.unloaded.empty()) << "nothing is saved";
}

}  // namespace
}  // namespace dialog
