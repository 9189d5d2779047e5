#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "dialog/more_options.h"
#include "settings/load_settings.h"
#include "settings/settings_file.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using Names = std::vector<std::string>;

struct MoreOptionsFolders : testing::Test {
  support::SettingsDialogMachine machine;
  SettingsDialog* dialog = nullptr;

  MoreOptionsFolders() {
    machine.setPictures({{"a.gif", "A"}});
    for (const char* path : {"C:\\sea\\1.jpg", "C:\\sea\\2.png", "C:\\sea\\notes.txt", "C:\\sea\\deep\\3.jpg",
                             "C:\\hills\\4.gif"}) {
      machine.folders->addFile(path);
    }
  }

  void inMore(const std::function<void(MoreOptions& form)>& act, bool accept = true) {
    if (!dialog) dialog = &machine.openDialog();
    machine.windows.whileModal = [&](forms::Form& form) {
      auto& more = static_cast<MoreOptions&>(form);
      act(more);
      (accept ? more.Ok : more.Cancel).userClicked();
    };
    dialog->form.MoreCommand.userClicked();
  }

  std::string saved() {
    if (!dialog) dialog = &machine.openDialog();
    dialog->form.Ok.userClicked();
    return machine.files.content[machine.kIniPath];
  }

  Names followedInFile() {
    return settings::FollowedFolders(
        settings::IniDocument(machine.files.content[machine.kIniPath], machine.ansi));
  }

  void addFolder(MoreOptions& form, const std::string& path) {
    machine.dialogs.folders.push_back(path);
    form.addFolder.userClicked();
  }
};

TEST_F(MoreOptionsFolders, AFolderIsAddedAtTheEndAndItsPicturesAreCounted) {
  machine.files.pictures = "C:\\Pictures";
  inMore([&](MoreOptions& form) {
    addFolder(form, "C:\\sea");
    EXPECT_EQ(form.folderList.items(), Names{"C:\\sea  (counting...)"});
    addFolder(form, "C:\\hills");
    machine.loop.runFor(50);
    EXPECT_EQ(form.folderList.items(), (Names{"C:\\sea  (2 images)", "C:\\hills  (1 image)"}));
    EXPECT_EQ(form.folderList.listIndex(), 1);
  });
  ASSERT_EQ(machine.dialogs.folderRequests.size(), 2U);
  EXPECT_EQ(machine.dialogs.folderRequests[0].start, "C:\\Pictures");
  EXPECT_EQ(machine.dialogs.folderRequests[1].start, "C:\\sea");
  const std::string file = saved();
  EXPECT_TRUE(file.ends_with("[folders]\r\n0=C:\\sea\r\n1=C:\\hills\r\n")) << file;
  EXPECT_EQ(followedInFile(), (Names{"C:\\sea", "C:\\hills"}));
}

TEST_F(MoreOptionsFolders, OneThatIsCancelledAddsNothing) {
  inMore([&](MoreOptions& form) {
    form.addFolder.userClicked();
    EXPECT_EQ(form.folderList.listCount(), 0);
  });
  EXPECT_EQ(saved().find("[folders]"), std::string::npos);
}

TEST_F(MoreOptionsFolders, OneThatIsThereAlreadyIsSelectedAndNotAddedAgain) {
  machine.set("folders", "0", "C:\\sea");
  machine.set("folders", "1", "C:\\hills");
  inMore([&](MoreOptions& form) {
    addFolder(form, "c:\\SEA\\");
    EXPECT_EQ(form.choices.folders, (Names{"C:\\sea", "C:\\hills"}));
    EXPECT_EQ(form.folderList.listIndex(), 0);
  });
}

TEST_F(MoreOptionsFolders, OneWhoseFileCannotHoldItsPathIsToldOf) {
  const std::string longest = "C:\\" + std::string(300, 'x');
  inMore([&](MoreOptions& form) {
    addFolder(form, longest);
    EXPECT_TRUE(form.choices.folders.empty());
  });
  ASSERT_EQ(machine.dialogs.messages.size(), 1U);
  EXPECT_NE(machine.dialogs.messages[0].text.find("longer than 254 characters"), std::string::npos);
}

TEST_F(MoreOptionsFolders, TheShowFollowsNoMoreThanItCan) {
  for (int i = 0; i < 64; ++i) machine.set("folders", std::to_string(i), "C:\\" + std::to_string(i));
  inMore([&](MoreOptions& form) {
    EXPECT_FALSE(form.addFolder.enabled());
    form.folderList.userSelected(63);
    form.removeFolder.userClicked();
    EXPECT_TRUE(form.addFolder.enabled());
    EXPECT_EQ(form.folderList.listIndex(), 62);
  });
}

TEST_F(MoreOptionsFolders, WhatLiesBelowCountsWhenItIsWanted) {
  machine.set("folders", "0", "C:\\sea");
  inMore([&](MoreOptions& form) {
    machine.loop.runFor(50);
    EXPECT_EQ(form.folderList.items(), Names{"C:\\sea  (2 images)"});
    form.subfolders.userClicked();
    EXPECT_EQ(form.folderList.items(), Names{"C:\\sea  (counting...)"});
    machine.loop.runFor(50);
    EXPECT_EQ(form.folderList.items(), Names{"C:\\sea  (3 images)"});
  });
  EXPECT_NE(saved().find("subfolders=1\r\n"), std::string::npos);
}

TEST_F(MoreOptionsFolders, AFolderThatIsAwayIsSaidToBeAndOneThatHangsHoldsUpNobody) {
  machine.set("folders", "0", "D:\\gone");
  machine.set("folders", "1", "C:\\sea");
  machine.set("folders", "2", "C:\\hills");
  machine.folders->setAway("D:\\gone", true);
  machine.openDialog();
  dialog = nullptr;
  int job = 0;
  machine.workers.delayMs = [&]() -> std::optional<int> {
    return ++job == 2 ? std::nullopt : std::optional(20);  // the second one is never answered
  };
  inMore([&](MoreOptions& form) {
    machine.loop.runFor(1000);
    EXPECT_EQ(form.folderList.items(),
              (Names{"D:\\gone  (not there now)", "C:\\sea  (counting...)", "C:\\hills  (1 image)"}));
  });
  EXPECT_TRUE(machine.workers.comeBack()) << "late, and nobody listens any more";
}

TEST_F(MoreOptionsFolders, ACountThatComesWhenTheFormIsGoneIsNobodys) {
  machine.set("folders", "0", "C:\\sea");
  inMore([](MoreOptions&) {});
  const int alive = machine.workers.alive;
  inMore([](MoreOptions&) {});  // the form before makes room
  machine.loop.runFor(1000);
  EXPECT_LE(machine.workers.alive, alive);
}

TEST_F(MoreOptionsFolders, TheOneThatIsRemovedLeavesNoGapInTheNumbers) {
  machine.set("folders", "0", "C:\\sea");
  machine.set("folders", "1", "C:\\hills");
  machine.set("folders", "2", "C:\\far");
  inMore([&](MoreOptions& form) {
    form.folderList.userSelected(1);
    form.removeFolder.userClicked();
    EXPECT_EQ(form.choices.folders, (Names{"C:\\sea", "C:\\far"}));
    EXPECT_EQ(form.folderList.listIndex(), 1) << "the next one";
    form.removeFolder.userClicked();
    EXPECT_EQ(form.folderList.listIndex(), 0) << "behind the end, the last";
  });
  const std::string file = saved();
  EXPECT_NE(file.find("[folders]\r\n0=C:\\sea\r\n["), std::string::npos) << file;
}

TEST_F(MoreOptionsFolders, NothingChangesInAFileWhoseFoldersStay) {
  machine.openDialog();
  std::string& file = machine.files.content[machine.kIniPath];
  file += "[Folders]\r\n; mine\r\n 0=x\r\n0 = \"C:\\sea\"\r\nother=1\r\n1=C:\\hills\r\n3=C:\\parked\r\n";
  dialog = &machine.openDialogOnFile();
  inMore([&](MoreOptions& form) { EXPECT_EQ(form.choices.folders, (Names{"C:\\sea", "C:\\hills"})); });
  const std::string tail = file.substr(file.find("[Folders]"));
  EXPECT_TRUE(saved().ends_with(tail));
}

TEST_F(MoreOptionsFolders, AnotherListChangesOnlyItsOwnLines) {
  machine.openDialog();
  std::string& file = machine.files.content[machine.kIniPath];
  file += "[folders]\r\n; mine\r\n0 = C:\\sea\r\nother=1\r\n1=C:\\hills\r\n3=C:\\parked\r\n";
  dialog = &machine.openDialogOnFile();
  inMore([&](MoreOptions& form) { addFolder(form, "C:\\new"); });
  EXPECT_TRUE(
      saved().ends_with("[folders]\r\n; mine\r\n0 = C:\\sea\r\nother=1\r\n1=C:\\hills\r\n2=C:\\new\r\n"))
      << "what was parked behind a gap would be followed now";
  EXPECT_EQ(followedInFile(), (Names{"C:\\sea", "C:\\hills", "C:\\new"}));
}

TEST_F(MoreOptionsFolders, FoldersThatAreFollowedNeedNoPictureInTheListFromNowOn) {
  machine.set("total", "total", "0");
  machine.dropSection("images");
  inMore([&](MoreOptions& form) { addFolder(form, "C:\\sea"); });
  machine.dialogs.messages.clear();
  saved();
  EXPECT_TRUE(machine.dialogs.messages.empty());
  EXPECT_TRUE(machine.loop.isQuitting());
}

TEST_F(MoreOptionsFolders, CancelHereOrThereLosesThem) {
  inMore([&](MoreOptions& form) { addFolder(form, "C:\\sea"); }, false);
  EXPECT_TRUE(dialog->form.followedFolders.empty());
  inMore([&](MoreOptions& form) { addFolder(form, "C:\\sea"); });
  EXPECT_EQ(dialog->form.followedFolders, Names{"C:\\sea"});
  dialog->form.Cancel.userClicked();
  EXPECT_TRUE(followedInFile().empty());
}

// As many pictures are hidden as the test says, until somebody brings them back.
struct HiddenImages : MoreOptionsFolders {
  int hidden = 3;
  int broughtBack = 0;

  SettingsDialog& openWithHidden() {
    machine.writeSettings();
    own.emplace(DialogServices{.files = machine.files,
                               .ansi = machine.ansi,
                               .pictures = machine.pictures,
                               .dialogs = machine.dialogs,
                               .windows = machine.windows,
                               .hidden = {.count = [this] { return hidden; },
                                          .showAgain = [this] { ++broughtBack; }}},
                machine.loop, machine.shell, machine.kProgramFolder, nullptr);
    own->show();
    return *own;
  }

  std::optional<SettingsDialog> own;
};

TEST_F(HiddenImages, AreCountedAndComeBackWithTheSave) {
  dialog = &openWithHidden();
  inMore([](MoreOptions& form) {
    EXPECT_EQ(form.hiddenText.caption(), "3 images are hidden.");
    form.showAgain.userClicked();
    EXPECT_EQ(form.hiddenText.caption(), "3 images come back when you save.");
    EXPECT_FALSE(form.showAgain.enabled());
  });
  EXPECT_EQ(broughtBack, 0);
  inMore([](MoreOptions& form) { EXPECT_FALSE(form.showAgain.enabled()) << "chosen already"; });
  saved();
  EXPECT_EQ(broughtBack, 1);
}

TEST_F(HiddenImages, StayHiddenWhenEitherFormIsCancelledOrNothingCanBeSaved) {
  dialog = &openWithHidden();
  inMore([](MoreOptions& form) { form.showAgain.userClicked(); }, false);
  saved();
  EXPECT_EQ(broughtBack, 0);
  own.reset();
  dialog = &openWithHidden();
  inMore([](MoreOptions& form) { form.showAgain.userClicked(); });
  dialog->form.Cancel.userClicked();
  EXPECT_EQ(broughtBack, 0);
  own.reset();
  dialog = &openWithHidden();
  inMore([](MoreOptions& form) { form.showAgain.userClicked(); });
  machine.files.writable = false;
  saved();
  EXPECT_EQ(broughtBack, 0);
}

TEST_F(HiddenImages, NoneAndOneHaveWordsOfTheirOwn) {
  hidden = 0;
  dialog = &openWithHidden();
  inMore([](MoreOptions& form) {
    EXPECT_EQ(form.hiddenText.caption(), "No images are hidden.");
    EXPECT_FALSE(form.showAgain.enabled());
  });
  hidden = 1;
  inMore([](MoreOptions& form) {
    EXPECT_EQ(form.hiddenText.caption(), "1 image is hidden.");
    EXPECT_TRUE(form.showAgain.enabled());
  });
}

}  // namespace
}  // namespace dialog
