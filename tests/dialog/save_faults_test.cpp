// Saving on a disk that fails: the settings are never lost.
#include <gtest/gtest.h>

#include "dialog/save_settings.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using support::SettingsDialogMachine;

constexpr char kSaveHint[] = "Settings cannot be saved in this folder.";

// Files of which one call fails, the others work.
class FailingFiles : public os::Files {
 public:
  explicit FailingFiles(support::FakeFiles& files) : files_(files) {}

  int failingCall = 0;  // counted from 1; 0 = none
  int calls = 0;

  std::optional<std::string> read(const std::string& path) override {
    return fails() ? std::nullopt : files_.read(path);
  }
  bool replace(const std::string& path, std::string_view content) override {
    return !fails() && files_.replace(path, content);
  }
  bool exists(const std::string& path) override { return !fails() && files_.exists(path); }
  bool copy(const std::string& from, const std::string& to) override {
    return !fails() && files_.copy(from, to);
  }
  bool canWriteIn(const std::string& folder) override { return !fails() && files_.canWriteIn(folder); }
  std::vector<std::string> filesIn(const std::string& folder) override { return files_.filesIn(folder); }
  std::string shortPath(const std::string& path) override { return files_.shortPath(path); }

 private:
  bool fails() { return ++calls == failingCall; }

  support::FakeFiles& files_;
};

struct SaveFaults : testing::Test {
  SettingsDialogMachine machine;
  FailingFiles failing{machine.files};
  std::unique_ptr<Form2> form;

  std::string& file() { return machine.files.content[machine.kIniPath]; }
  std::string& kept() { return machine.files.content[machine.kBakPath]; }

  // Opens the dialog with every call working, then lets one call of the save fail. Returns the number of
  // calls that the save made.
  int saveWithFailure(int call) {
    failing.failingCall = 0;
    form = std::make_unique<Form2>(
        DialogServices{failing, machine.ansi, machine.pictures, machine.dialogs, machine.windows},
        machine.kProgramFolder);
    machine.windows.show(*form);
    if (form->List1.listCount() == 0) {
      form->List1.addItem("new.gif");
      form->photo_caption.addItem("");
    }
    form->photo_caption.setItem(0, "new");
    form->record.timeDisplay = "0";
    failing.calls = 0;
    failing.failingCall = call;
    EXPECT_TRUE(SaveSettings(*form)) << "a failed write is not reported";
    failing.failingCall = 0;
    return failing.calls;
  }
};

TEST_F(SaveFaults, WhicheverCallFailsTheFileHoldsTheOldOrTheNewSettings) {
  machine.setPictures({{"a.gif", "old"}});
  machine.writeSettings();
  const std::string old = file() + "; a comment\r\n";
  file() = old;
  const int calls = saveWithFailure(0);
  ASSERT_GE(calls, 2);
  const std::string whole = file();
  ASSERT_NE(whole, old);
  for (int call = 1; call <= calls; ++call) {
    file() = old;
    saveWithFailure(call);
    EXPECT_TRUE(file() == old || file() == whole) << "call " << call << ":\n" << file();
  }
  EXPECT_FALSE(machine.files.content.contains(machine.kBakPath));
}

TEST_F(SaveFaults, WhicheverCallFailsTheOldFileOfAFailedLoadingIsStillSomewhere) {
  const std::string old = "[images]\r\n0=precious.gif\r\n; no total\r\n";
  file() = old;
  const int calls = saveWithFailure(0);
  EXPECT_EQ(kept(), old);
  EXPECT_NE(file(), old);
  for (int call = 1; call <= calls; ++call) {
    machine.files.content.clear();
    file() = old;
    saveWithFailure(call);
    EXPECT_TRUE(file() == old || kept() == old) << "call " << call;
  }
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
  opened.noneOption.setDesignValue(false);
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
  opened.noneOption.setDesignValue(false);
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
  saveWithFailure(0);
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

TEST_F(SaveFaults, TheStatusBarKeepsUpWithTheFolderAtEachRefusedSave) {
  machine.files.writable = false;
  Form2& opened = machine.openDialog().form;
  machine.files.writable = true;
  opened.Ok.userClicked();
  EXPECT_EQ(opened.SS_StatusBar.panelText(2), "");
}

}  // namespace
}  // namespace dialog
