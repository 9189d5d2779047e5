#include "dialog/settings_dialog.h"

#include <gtest/gtest.h>

#include "auxwin/multi_files.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using support::Listed;
using Message = support::FakeDialogs::Message;
using Names = std::vector<std::string>;

struct SettingsDialogTest : testing::Test {
  support::SettingsDialogMachine machine;

  SettingsDialog& open() {
    machine.setPictures({{"a.gif", "A"}, {"b.gif", "B"}});
    SettingsDialog& dialog = machine.openDialog();
    machine.rest();
    return dialog;
  }
};

TEST_F(SettingsDialogTest, TheViewerOpensFromListThumbnailAndButton) {
  for (int way = 0; way < 3; ++way) {
    support::SettingsDialogMachine other;
    other.setPictures({{"a.gif", "A"}, {"b.gif", "B"}});
    SettingsDialog& dialog = other.openDialog();
    dialog.form.List1.userSelected(1);
    if (way == 0) dialog.form.List1.onDblClick();
    if (way == 1) dialog.form.photo1.onDblClick();
    if (way == 2) dialog.form.EnlargeCommand.userClicked();
    EXPECT_EQ(other.windows.shown, (Names{"Form2", "ImageView"}));
    EXPECT_EQ(dialog.viewer.caption(), "b.gif");
    EXPECT_TRUE(dialog.form.host()) << "the dialog stays usable";
  }
}

TEST_F(SettingsDialogTest, AnotherPictureTakesThePlaceOfTheOneInTheViewer) {
  SettingsDialog& dialog = open();
  dialog.form.EnlargeCommand.userClicked();
  dialog.form.List1.userSelected(1);
  dialog.form.EnlargeCommand.userClicked();
  EXPECT_EQ(dialog.viewer.caption(), "b.gif");
  EXPECT_EQ(machine.windows.unloaded, Names{"ImageView"});
  EXPECT_TRUE(dialog.viewer.host());
}

TEST_F(SettingsDialogTest, TheViewerGoesWithTheDialog) {
  SettingsDialog& dialog = open();
  dialog.form.EnlargeCommand.userClicked();
  dialog.form.Cancel.userClicked();
  EXPECT_EQ(machine.windows.unloaded, (Names{"Form2", "ImageView"}));
  EXPECT_TRUE(machine.loop.isQuitting());
}

TEST_F(SettingsDialogTest, ClosingTheWindowEndsTheProgramToo) {
  SettingsDialog& dialog = open();
  machine.windows.unload(dialog.form);
  EXPECT_TRUE(machine.loop.isQuitting());
}

TEST_F(SettingsDialogTest, FolderImportIsModalAndItsListIsUpToDateWhenItCloses) {
  SettingsDialog& dialog = open();
  machine.files.listed["C:\\"] = {"z.bmp", "y.txt", "x.GIF"};
  machine.pictures.add("C:\\z.bmp", {4, 3}, 0);
  machine.windows.whileModal = [](forms::Form& form) {
    static_cast<auxwin::MultiFiles&>(form).Command1.userClicked();
  };
  dialog.form.FolderCommand.userClicked();
  EXPECT_EQ(machine.windows.shown, (Names{"Form2", "MultiFiles"}));
  EXPECT_EQ(machine.windows.unloaded, Names{"MultiFiles"});
  EXPECT_EQ(Listed(dialog), "a.gif=A;b.gif=B;C:\\x.GIF=;C:\\z.bmp=;");
  EXPECT_EQ(dialog.form.Text3.text(), "4") << "bare digits";
  EXPECT_EQ(dialog.form.ImagePosition.text(), "Position: 4");
  EXPECT_EQ(machine.pictures.opened.back(), "C:\\z.bmp");
  dialog.form.remove.userClicked();
  EXPECT_EQ(dialog.form.Text3.text(), "Total: 3") << "the words come back with the next change";
}

TEST_F(SettingsDialogTest, TheAdviceIsGivenOnceWhetherByFolderOrByFile) {
  SettingsDialog& dialog = open();
  for (int i = 0; i < 699; ++i) machine.files.listed["C:\\"].push_back(std::to_string(i) + ".gif");
  machine.windows.whileModal = [](forms::Form& form) {
    static_cast<auxwin::MultiFiles&>(form).Command1.userClicked();
  };
  dialog.form.FolderCommand.userClicked();
  ASSERT_EQ(dialog.form.List1.listCount(), 701);
  ASSERT_EQ(machine.dialogs.messages.size(), 2U);
  EXPECT_TRUE(machine.dialogs.messages[0].text.starts_with("Cannot load"))
      << "the last one is selected first";
  EXPECT_TRUE(machine.dialogs.messages[1].text.starts_with("It is recommended"));
  machine.dialogs.messages.clear();
  machine.dialogs.files.push_back("a.gif");
  dialog.form.add.userClicked();
  EXPECT_TRUE(machine.dialogs.messages.empty());
}

TEST_F(SettingsDialogTest, WhatCannotBeDoneIsSaidWithItsReasonAndChangesNothing) {
  SettingsDialog& dialog = open();
  machine.loop.post([] { throw std::runtime_error("The printer is on fire."); });
  machine.loop.post([] { throw std::bad_alloc(); });
  machine.loop.runPending();
  EXPECT_EQ(machine.dialogs.messages, (std::vector<support::FakeDialogs::Message>{
                                          {"This could not be done.\r\nThe printer is on fire.", 48},
                                          {"This could not be done.\r\nThere is not enough memory.", 48}}));
  EXPECT_EQ(Listed(dialog), "a.gif=A;b.gif=B;");
  EXPECT_FALSE(machine.loop.isQuitting());
}

TEST_F(SettingsDialogTest, AnErrorWhileOneIsToldAddsNothing) {
  struct Failing : support::FakeDialogs {
    support::FakeEventLoop* loop = nullptr;
    forms::Answer messageBox(const std::string& text, std::uint32_t style) override {
      const forms::Answer answer = FakeDialogs::messageBox(text, style);
      loop->post([] { throw std::runtime_error("again"); });
      loop->runPending();
      return answer;
    }
  } dialogs;
  dialogs.loop = &machine.loop;
  SettingsDialog dialog({machine.files, machine.ansi, machine.pictures, dialogs, machine.windows},
                        machine.loop, machine.shell, "C:\\Lumora", nullptr);
  machine.loop.post([] { throw std::runtime_error("first"); });
  machine.loop.runPending();
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(SettingsDialogTest, APictureTooLargeForTheMemoryIsOneThatCannotBeLoaded) {
  struct Huge : pictures::PictureLoader {
    pictures::PictureLoader* others = nullptr;
    pictures::SharedPicture open(const std::string& path) override {
      if (path == "huge.png") throw std::bad_alloc();
      return others->open(path);
    }
  } huge;
  huge.others = &machine.pictures;
  machine.setPictures({{"a.gif", "A"}});
  machine.writeSettings();
  SettingsDialog dialog({machine.files, machine.ansi, huge, machine.dialogs, machine.windows}, machine.loop,
                        machine.shell, "C:\\Lumora", nullptr);
  dialog.show();
  machine.rest();
  machine.dialogs.files = {"huge.png", "huge.png"};
  dialog.form.add.userClicked();
  EXPECT_EQ(Listed(dialog), "a.gif=A;huge.png=;");
  EXPECT_EQ(dialog.form.photo1.picture(), nullptr);
  dialog.form.backgroundCustomImage.userClicked();
  dialog.form.addBackImg.userClicked();
  EXPECT_EQ(machine.dialogs.messages,
            (std::vector<support::FakeDialogs::Message>{
                support::kCannotLoadImage,
                {"Could not load Background Image correctly. Please reload a new image.", 48}}));
}

TEST_F(SettingsDialogTest, HelpIsThePageInTheProgramFolder) {
  SettingsDialog& dialog = open();
  dialog.form.LumoraHelp.userClicked();
  EXPECT_EQ(machine.shell.opened, Names{"C:\\Lumora\\lumoraHelp.htm"});
}

TEST_F(SettingsDialogTest, AProgramFolderThatEndsInABackslashGetsNoSecondOne) {
  SettingsDialog dialog({machine.files, machine.ansi, machine.pictures, machine.dialogs, machine.windows},
                        machine.loop, machine.shell, "D:\\", nullptr);
  dialog.form.LumoraHelp.userClicked();
  EXPECT_EQ(machine.shell.opened, Names{"D:\\lumoraHelp.htm"});
}

TEST_F(SettingsDialogTest, TheWebsitesMenuOpensTheMakersPage) {
  SettingsDialog& dialog = open();
  dialog.form.Tolv.userClicked();
  EXPECT_EQ(machine.shell.opened, Names{"https://www.lumora.example/"});
}

TEST_F(SettingsDialogTest, TheAboutBoxIsModalAndCanBeOpenedAgain) {
  SettingsDialog& dialog = open();
  dialog.form.AboutLumora.userClicked();
  dialog.form.AboutLumora.userClicked();
  EXPECT_EQ(machine.windows.shown, (Names{"Form2", "frmAbout", "frmAbout"}));
  EXPECT_EQ(machine.windows.unloaded, (Names{"frmAbout", "frmAbout"}));
}

// The task manager closes the main window, and the wait for the import ends with the program.
TEST_F(SettingsDialogTest, AnImportThatIsOpenWhenTheProgramEndsLivesAsLongAsItsWindow) {
  machine.windows.leavesModalOpen = true;
  machine.files.listed["C:\\"] = {"z.bmp"};
  {
    SettingsDialog dialog({machine.files, machine.ansi, machine.pictures, machine.dialogs, machine.windows},
                          machine.loop, machine.shell, "C:\\Lumora", nullptr);
    dialog.show();
    machine.windows.whileModal = [&](forms::Form&) { machine.windows.unload(dialog.form); };
    dialog.FolderCommand_Click();
    EXPECT_TRUE(machine.loop.isQuitting());
    ASSERT_TRUE(dialog.folderImport->host()) << "its window is still there";
    // Its controls are still there as well.
    dialog.folderImport->filFilenames.setPath("C:\\elsewhere");
    EXPECT_EQ(dialog.folderImport->filFilenames.listCount(), 0);
  }
  EXPECT_EQ(machine.windows.unloaded.back(), "MultiFiles");
}

TEST_F(SettingsDialogTest, TheImportStartsWhereTheUserKeepsPicturesAndThenWhereTheyWereLast) {
  SettingsDialog& dialog = open();
  machine.files.current = "C:\\Windows\\System32";
  machine.files.pictures = "C:\\Pictures";
  machine.files.listed["D:\\sea"] = {"wave.gif"};
  Names started;
  machine.windows.whileModal = [&](forms::Form& form) {
    auto& import = static_cast<auxwin::MultiFiles&>(form);
    started.push_back(import.dirDirectories.path());
    import.dirDirectories.setPath("D:\\sea");
    if (started.size() > 1) {
      import.Command1.userClicked();
    } else {
      import.cmdQuit.userClicked();
    }
  };
  for (int i = 0; i < 3; ++i) dialog.form.FolderCommand.userClicked();
  EXPECT_EQ(started, (Names{"C:\\Pictures", "C:\\Pictures", "D:\\sea"}));
  EXPECT_EQ(machine.files.current, "C:\\Windows\\System32") << "the program works where it did";
}

TEST_F(SettingsDialogTest, ANewRunOfTheDialogStartsTheImportWhereTheListsLastPictureCameFrom) {
  machine.setPictures({{"C:\\Lumora\\image1.gif", ""}, {"D:\\sea\\wave.gif", ""}});
  SettingsDialog& dialog = machine.openDialog();
  machine.files.pictures = "C:\\Pictures";
  Names started;
  machine.windows.whileModal = [&](forms::Form& form) {
    started.push_back(static_cast<auxwin::MultiFiles&>(form).dirDirectories.path());
  };
  const auto importAgain = [&] { dialog.form.FolderCommand.userClicked(); };
  importAgain();
  machine.files.gone = {"D:\\sea"};  // a stick that was taken out
  importAgain();
  dialog.form.List1.setItems({"D:\\hills\\a.jpg", "C:\\Lumora\\image1.gif"});
  importAgain();  // nobody chose the sample pictures' folder
  dialog.form.List1.setItems({"bare.gif"});
  importAgain();
  dialog.form.List1.clear();
  importAgain();
  EXPECT_EQ(started, (Names{"D:\\sea", "C:\\Pictures", "C:\\Pictures", "C:\\Pictures", "C:\\Pictures"}));
}

TEST_F(SettingsDialogTest, WithoutAPicturesFolderTheImportStartsInTheProgramsOwn) {
  SettingsDialog& dialog = open();
  machine.files.current = "C:\\Windows\\System32";
  machine.files.pictures = "";
  std::string started;
  machine.windows.whileModal = [&](forms::Form& form) {
    started = static_cast<auxwin::MultiFiles&>(form).dirDirectories.path();
  };
  dialog.form.FolderCommand.userClicked();
  EXPECT_EQ(started, "C:\\Lumora");
}

TEST_F(SettingsDialogTest, TheKeyForHelpOpensTheHelp) {
  SettingsDialog& dialog = open();
  dialog.form.onHelp();
  EXPECT_EQ(machine.shell.opened, Names{"C:\\Lumora\\lumoraHelp.htm"});
}

TEST_F(SettingsDialogTest, NothingOfItStaysWhenItIsTakenDownWhileOpen) {
  {
    SettingsDialog dialog({machine.files, machine.ansi, machine.pictures, machine.dialogs, machine.windows},
                          machine.loop, machine.shell, "C:\\Lumora", nullptr);
    dialog.show();
    machine.dialogs.messages.clear();
    dialog.EnlargeCommand_Click();
  }
  EXPECT_EQ(machine.windows.unloaded, (Names{"ImageView", "Form2"}));
  EXPECT_EQ(machine.loop.timersRunning(), 0);
}

}  // namespace
}  // namespace dialog
