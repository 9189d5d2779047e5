// Settings files of which something cannot be used: the dialog mends them, and nothing of the old file is
// lost.
#include <gtest/gtest.h>

#include "dialog/kept_files.h"
#include "settings/load_settings.h"
#include "settings/settings_file.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using support::SettingsDialogMachine;

struct BrokenSettings : testing::Test {
  SettingsDialogMachine machine;

  std::string& file() { return machine.files.content[machine.kIniPath]; }
  std::string kept(int number) {
    const std::string name = number == 1 ? "zbfaone.bak" : "zbfaone-" + std::to_string(number) + ".bak";
    const auto found = machine.files.content.find("C:\\Lumora\\" + name);
    return found == machine.files.content.end() ? "(none)" : found->second;
  }
  std::string saved(const char* section, const char* key) {
    return settings::ReadIniValue(settings::IniDocument(file(), machine.ansi), section, key);
  }
};

TEST_F(BrokenSettings, OneMissingKeyIsMendedByOneClickAndOk) {
  machine.setPictures({{"a.gif", "A"}});
  machine.drop("image", "randomPick");
  Form2& form = machine.openDialog().form;
  const std::string old = file();
  ASSERT_FALSE(form.loadedWell());
  ASSERT_TRUE(form.noneOption.value());
  form.noneOption.userClicked();
  machine.dialogs.messages.clear();
  form.Ok.userClicked();
  EXPECT_TRUE(machine.dialogs.messages.empty());
  EXPECT_TRUE(machine.loop.isQuitting());
  EXPECT_EQ(kept(1), old);
  settings::SaverSettings loaded;
  LoadSettings(loaded, settings::IniDocument(file(), machine.ansi), settings::Conversion::Strict);
  EXPECT_EQ(loaded.imageFiles, (std::vector<std::string>{"a.gif", ""}));
  for (const settings::Key& key : settings::kWrittenKeys) {
    EXPECT_EQ(saved(key.section, key.name), key.fallback) << "nothing after the missing key was read";
  }
  SettingsDialogMachine again;
  again.files.content = machine.files.content;
  again.pictures.add("a.gif", {4, 3}, 0);
  EXPECT_TRUE(again.openDialogOnFile().form.loadedWell());
}

TEST_F(BrokenSettings, TextThatWasReadAndCouldNotBeUsedIsWrittenBack) {
  machine.setPictures({{"a.gif", "A"}});
  machine.set("image", "randomPick", "1");
  machine.set("background", "newBackColor", "teal");
  Form2& form = machine.openDialog().form;
  form.timeOption.userClicked();
  form.Ok.userClicked();
  EXPECT_EQ(saved("image", "randomPick"), "1");
  EXPECT_EQ(saved("background", "newBackColor"), "teal");
  EXPECT_EQ(saved("background", "backEffect"), "3");
  EXPECT_EQ(saved("image", "timeDisplay"), "1");
}

TEST_F(BrokenSettings, TheClockHasNoDefaultBeforeTheDateIsChecked) {
  machine.setPictures({{"a.gif", "A"}});
  machine.drop("image", "randomPick");
  Form2& form = machine.openDialog().form;
  machine.dialogs.messages.clear();
  form.Ok.userClicked();
  EXPECT_EQ(machine.dialogs.messages,
            (std::vector<support::FakeDialogs::Message>{
                {"Countdown date is invalid. Please choose a different date.", 48}}));
  EXPECT_TRUE(machine.files.writes.empty());
}

TEST_F(BrokenSettings, AfterALoadingThatSucceededEmptyTextStaysEmpty) {
  machine.setPictures({{"a.gif", "A"}});
  machine.set("font", "newFontName", "");
  machine.openDialog().form.Ok.userClicked();
  EXPECT_EQ(saved("font", "newFontName"), "");
}

// --- what is kept of old files ---

struct KeptFiles : BrokenSettings {
  Form2& form = machine.open();
  std::string good = file();

  std::string without(const std::string& line) const {
    std::string text = good;
    const std::size_t at = text.find(line);
    EXPECT_NE(at, std::string::npos);
    return text.erase(at, line.size());
  }
};

TEST_F(KeptFiles, AFileThatLoadsWorseGoesBesideTheOneThatIsKept) {
  const std::string oneMissing = without("randomPick=1\r\n");
  EXPECT_TRUE(KeepOldFile(form, oneMissing));
  EXPECT_TRUE(KeepOldFile(form, "[total]\r\ntotal=1\r\n"));
  EXPECT_EQ(kept(1), oneMissing);
  EXPECT_EQ(kept(2), "[total]\r\ntotal=1\r\n");
  EXPECT_EQ(kept(3), "(none)");
}

TEST_F(KeptFiles, OneThatLoadsWellTakesTheFirstPlace) {
  EXPECT_TRUE(KeepOldFile(form, without("randomPick=1\r\n")));
  EXPECT_TRUE(KeepOldFile(form, good));
  EXPECT_EQ(kept(1), good);
  EXPECT_EQ(kept(2), "(none)");
  EXPECT_TRUE(KeepOldFile(form, without("picSpeed=4\r\n")));
  EXPECT_EQ(kept(1), good);
  EXPECT_EQ(kept(2), without("picSpeed=4\r\n"));
}

TEST_F(KeptFiles, TheSameFileIsKeptOnce) {
  const std::string old = without("bFade=0\r\n");
  EXPECT_TRUE(KeepOldFile(form, old));
  EXPECT_TRUE(KeepOldFile(form, old));
  EXPECT_EQ(kept(1), old);
  EXPECT_EQ(kept(2), "(none)");
}

TEST_F(KeptFiles, AtMostFiveAreKeptAndTheFirstFourStay) {
  const auto number = [](int i) { return "[total]\r\ntotal=" + std::to_string(i) + "\r\n"; };
  for (int i = 1; i <= 7; ++i) EXPECT_TRUE(KeepOldFile(form, number(i)));
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(kept(i), number(i));
  EXPECT_EQ(kept(5), number(7));
  EXPECT_EQ(kept(6), "(none)");
}

TEST_F(KeptFiles, OneThatCannotBeReadIsNotWrittenOver) {
  EXPECT_TRUE(KeepOldFile(form, good));
  machine.files.locked.insert("C:\\Lumora\\zbfaone.bak");
  const std::string old = without("bFade=0\r\n");
  EXPECT_TRUE(KeepOldFile(form, old));
  EXPECT_EQ(kept(1), good);
  EXPECT_EQ(kept(2), old);
}

}  // namespace
}  // namespace dialog
