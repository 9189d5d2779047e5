// Saving on a disk that fails: the settings are never lost.
#include <gtest/gtest.h>

#include "dialog/save_settings.h"
#include "support/faulty_files.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using support::Fault;
using support::FaultyFiles;
using support::SettingsDialogMachine;

constexpr char kSaveHint[] = "Settings cannot be saved in this folder.";

struct SaveFaults : testing::Test {
  SettingsDialogMachine machine;
  FaultyFiles faulty{machine.files};
  std::unique_ptr<Form2> form;

  std::string& file() { return machine.files.content[machine.kIniPath]; }
  std::string& kept() { return machine.files.content[machine.kBakPath]; }

  void open() {
    form = std::make_unique<Form2>(
        DialogServices{faulty, machine.ansi, machine.pictures, machine.dialogs, machine.windows},
        machine.kProgramFolder);
    machine.dialogs.messages.clear();
    machine.windows.show(*form);
    EXPECT_EQ(machine.dialogs.messages.size(), form->loadedWell() ? 0U : 1U)
        << "a failed loading is reported";
  }

  void changeAndSave() {
    if (form->List1.listCount() == 0) {
      form->List1.addItem("new.gif");
      form->photo_caption.addItem("");
    }
    form->photo_caption.setItem(0, "new");
    form->record.timeDisplay = "0";
    const std::size_t messages = machine.dialogs.messages.size();
    EXPECT_TRUE(SaveSettings(*form)) << "a failed write is not reported";
    EXPECT_EQ(machine.dialogs.messages.size(), messages);
  }

  // Opens the dialog with every call working, then saves under the faults. Returns the number of calls that
  // the save made.
  int saveUnder(const std::map<int, Fault>& faults) {
    faulty.faults.clear();
    open();
    faulty.calls = 0;
    faulty.faults = faults;
    changeAndSave();
    return faulty.calls;
  }

  // The same with faults from the opening on, counted through.
  int openAndSaveUnder(const std::map<int, Fault>& faults) {
    faulty.calls = 0;
    faulty.faults = faults;
    open();
    changeAndSave();
    return faulty.calls;
  }
};

// Calls `look` with every set of one and of two faults among the first `calls` calls.
template <typename Look>
void ForEachFaults(int calls, const Look& look) {
  for (int first = 1; first <= calls; ++first) {
    for (const Fault fault : support::kAllFaults) {
      look({{first, fault}});
      for (int second = first + 1; second <= calls; ++second) {
        for (const Fault other : support::kAllFaults) look({{first, fault}, {second, other}});
      }
    }
  }
}

std::string Describe(const std::map<int, Fault>& faults) {
  std::string text;
  for (const auto& [call, fault] : faults) {
    text += "call " + std::to_string(call) + " fault " + std::to_string(static_cast<int>(fault)) + "; ";
  }
  return text;
}

TEST_F(SaveFaults, WhicheverCallsFailTheFileHoldsTheOldOrTheNewSettings) {
  machine.setPictures({{"a.gif", "old"}});
  machine.writeSettings();
  const std::string old = file() + "; a comment\r\n[extras]\r\nlivePreview=1\r\n";
  file() = old;
  const int calls = saveUnder({});
  ASSERT_GE(calls, 2);
  const std::string whole = file();
  ASSERT_NE(whole, old);
  int cases = 0;
  ForEachFaults(calls + 2, [&](const std::map<int, Fault>& faults) {
    ++cases;
    file() = old;
    saveUnder(faults);
    EXPECT_TRUE(file() == old || file() == whole) << Describe(faults) << "\n" << file();
  });
  EXPECT_FALSE(machine.files.content.contains(machine.kBakPath));
  EXPECT_GE(cases, 100);
}

TEST_F(SaveFaults, WhicheverCallsFailFromTheOpeningOnTheOldSettingsAreSomewhereOrTheNewOnesAreThere) {
  machine.setPictures({{"a.gif", "old"}});
  machine.writeSettings();
  const std::string old = file() + "; a comment\r\n";
  file() = old;
  const int calls = openAndSaveUnder({});
  const std::string whole = file();
  ASSERT_NE(whole, old);
  ForEachFaults(calls + 2, [&](const std::map<int, Fault>& faults) {
    machine.files.content.clear();
    file() = old;
    openAndSaveUnder(faults);
    EXPECT_TRUE(file() == old || file() == whole || kept() == old) << Describe(faults) << "\n" << file();
  });
}

TEST_F(SaveFaults, WhicheverCallsFailTheOldFileOfAFailedLoadingIsStillSomewhere) {
  const std::string old = "[images]\r\n0=precious.gif\r\n; no total\r\n";
  file() = old;
  const int calls = saveUnder({});
  EXPECT_EQ(kept(), old);
  EXPECT_NE(file(), old);
  ForEachFaults(calls + 2, [&](const std::map<int, Fault>& faults) {
    machine.files.content.clear();
    file() = old;
    saveUnder(faults);
    EXPECT_TRUE(file() == old || kept() == old) << Describe(faults);
  });
}

TEST_F(SaveFaults, AFolderThatCannotBeWrittenLeavesTheFileAndEndsTheDialogSilently) {
  machine.setPictures({{"a.gif", "old"}});
  machine.writeSettings();
  const std::string old = file();
  machine.files.writable = false;
  Form2& opened = machine.openDialogOnFile().form;
  opened.p_caption.userTyped("new");
  opened.Ok.userClicked();
  EXPECT_EQ(file(), old);
  EXPECT_TRUE(machine.dialogs.messages.empty());
  EXPECT_TRUE(machine.loop.isQuitting());
}

TEST_F(SaveFaults, AFileThatIsInUseAtTheSaveIsLeftAsItIs) {
  machine.setPictures({{"a.gif", "old"}});
  Form2& opened = machine.openDialog().form;
  const std::string old = file();
  machine.files.locked.insert(machine.kIniPath);
  opened.Ok.userClicked();
  EXPECT_EQ(file(), old);
  EXPECT_TRUE(machine.loop.isQuitting());
}

TEST_F(SaveFaults, AFileThatCouldNotBeReadIsNotOverwrittenWithDefaults) {
  machine.setPictures({{"a.gif", "old"}});
  machine.writeSettings();
  const std::string old = file();
  machine.files.locked.insert(machine.kIniPath);
  Form2& opened = machine.openDialogOnFile().form;
  EXPECT_FALSE(opened.loadedWell());
  EXPECT_EQ(file(), old);
  machine.dialogs.files.push_back("a.gif");
  opened.add.userClicked();
  opened.noneOption.userClicked();
  opened.Ok.userClicked();
  EXPECT_TRUE(machine.loop.isQuitting());
  EXPECT_EQ(file(), old);
  EXPECT_FALSE(machine.files.content.contains(machine.kBakPath));
}

TEST_F(SaveFaults, OneThatCanBeReadAgainByThenIsKeptBesideTheNewOne) {
  machine.setPictures({{"a.gif", "old"}});
  machine.writeSettings();
  const std::string old = file();
  machine.files.locked.insert(machine.kIniPath);
  Form2& opened = machine.openDialogOnFile().form;
  machine.dialogs.files.push_back("a.gif");
  opened.add.userClicked();
  opened.noneOption.userClicked();
  machine.files.locked.clear();
  opened.Ok.userClicked();
  EXPECT_TRUE(machine.loop.isQuitting());
  EXPECT_EQ(kept(), old);
  EXPECT_NE(file(), old);
}

TEST_F(SaveFaults, AfterALoadingThatSucceededNoOldFileIsKept) {
  machine.setPictures({{"a.gif", "old"}});
  machine.openDialog().form.Ok.userClicked();
  EXPECT_FALSE(machine.files.content.contains(machine.kBakPath));
}

TEST_F(SaveFaults, AnOlderKeptFileGivesWay) {
  file() = "[total]\r\ntotal=none\r\n";
  kept() = "older";
  saveUnder({});
  EXPECT_EQ(kept(), "[total]\r\ntotal=none\r\n");
}

TEST_F(SaveFaults, TheStatusBarSaysWhenTheFolderCannotBeWritten) {
  machine.setPictures({{"a.gif", ""}});
  machine.files.writable = false;
  EXPECT_EQ(machine.openDialog().form.SS_StatusBar.panelText(2), kSaveHint);
}

TEST_F(SaveFaults, TheStatusBarSaysNothingOfAFolderThatCanBeWritten) {
  machine.setPictures({{"a.gif", ""}});
  Form2& opened = machine.openDialog().form;
  EXPECT_EQ(opened.SS_StatusBar.panelText(2), "");
  opened.Ok.onMouseMove({});
  EXPECT_EQ(opened.SS_StatusBar.panelText(2), "") << "hints go to the first panel";
}

TEST_F(SaveFaults, TheStatusBarSaysWhenTheFileIsReadOnly) {
  machine.setPictures({{"a.gif", ""}});
  machine.writeSettings();
  std::string asked;
  Form2 opened({machine.files, machine.ansi, machine.pictures, machine.dialogs, machine.windows,
                [&](const std::string& path) {
                  asked = path;
                  return true;
                }},
               machine.kProgramFolder);
  ShowWhetherSettingsCanBeSaved(opened);
  EXPECT_EQ(opened.SS_StatusBar.panelText(2), "Settings cannot be saved: zbfaone.ini is read-only.");
  EXPECT_EQ(asked, machine.kIniPath);
  machine.files.writable = false;
  ShowWhetherSettingsCanBeSaved(opened);
  EXPECT_EQ(opened.SS_StatusBar.panelText(2), kSaveHint);
}

TEST_F(SaveFaults, TheStatusBarKeepsUpWithTheFolderAtEachRefusedSave) {
  machine.files.writable = false;
  Form2& opened = machine.openDialog().form;
  machine.files.writable = true;
  opened.Ok.userClicked();
  EXPECT_EQ(opened.SS_StatusBar.panelText(2), "Not saved: there are no images.")
      << "and no more of the folder";
}

}  // namespace
}  // namespace dialog
