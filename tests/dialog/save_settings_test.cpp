#include "dialog/save_settings.h"

#include <gtest/gtest.h>

#include "settings/ini_document.h"
#include "settings/load_settings.h"
#include "settings/settings_file.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using support::SettingsDialogMachine;
using Message = support::FakeDialogs::Message;

const Message kNoImages{
    "There are no images loaded in the Screen Saver. Load at least one image file to be displayed.", 48};
const Message kNoBackground{
    "You must enter a background image for the 'Custom background Image' feature or make another background "
    "selection.",
    48};
const Message kBadDate{"Countdown date is invalid. Please choose a different date.", 48};

struct SaveSettingsTest : testing::Test {
  SettingsDialogMachine machine;

  Form2& openWithPictures() {
    machine.setPictures({{"a.gif", "A"}, {"b.gif", ""}, {"c.gif", "C"}});
    return machine.openDialog().form;
  }
  std::string& file() { return machine.files.content[machine.kIniPath]; }
  std::string saved(const std::string& section, const std::string& key) {
    return settings::ReadIniValue(settings::IniDocument(file(), machine.ansi), section, key);
  }
  // Presses OK and expects the refusal; nothing may have been written and the dialog stays.
  void expectRefused(Form2& form, const Message& message) {
    const std::string before = file();
    const std::size_t writes = machine.files.writes.size();
    machine.dialogs.messages.clear();
    form.Ok.userClicked();
    EXPECT_EQ(machine.dialogs.messages, std::vector<Message>{message});
    EXPECT_EQ(file(), before);
    EXPECT_EQ(machine.files.writes.size(), writes);
    EXPECT_EQ(form.mousePointer(), forms::MousePointer::Default);
    EXPECT_TRUE(machine.windows.unloaded.empty());
    EXPECT_FALSE(machine.loop.isQuitting());
  }
  void expectSaved(Form2& form) {
    machine.dialogs.messages.clear();
    form.Ok.userClicked();
    EXPECT_TRUE(machine.dialogs.messages.empty());
    EXPECT_EQ(machine.windows.unloaded, std::vector<std::string>{"Form2"});
    EXPECT_TRUE(machine.loop.isQuitting());
  }
};

TEST_F(SaveSettingsTest, AnEmptyListIsNoFaultWhenAFolderIsFollowed) {
  machine.set("folders", "0", "C:\\photos");
  expectSaved(machine.openDialog().form);
  EXPECT_EQ(saved("total", "total"), "0");
  EXPECT_EQ(saved("folders", "0"), "C:\\photos");
}

TEST_F(SaveSettingsTest, AnEmptyListIsReportedAndNothingIsWritten) {
  expectRefused(machine.openDialog().form, kNoImages);
}

TEST_F(SaveSettingsTest, AFirstEntryWithoutAPathCountsAsAnEmptyList) {
  machine.set("total", "total", "1");
  expectRefused(machine.openDialog().form, kNoImages);
}

TEST_F(SaveSettingsTest, TheListIsReportedBeforeBackgroundAndDate) {
  machine.set("background", "backEffect", "2");
  machine.set("date", "countdownDay", "30");
  Form2& form = machine.openDialog().form;
  expectRefused(form, kNoImages);
}

TEST_F(SaveSettingsTest, TheBackgroundIsReportedBeforeTheDate) {
  machine.set("background", "backEffect", "2");
  machine.set("date", "countdownDay", "30");
  Form2& form = openWithPictures();
  expectRefused(form, kNoBackground);
  form.record.backgroundImage = "sea.jpg";
  expectRefused(form, kBadDate);
  form.record.countdownDay = "28";
  expectSaved(form);
}

TEST_F(SaveSettingsTest, ABackgroundImageIsNeededByTheCustomBackgroundAlone) {
  for (const char* effect : {"0", "1", "3"}) {
    SettingsDialogMachine other;
    other.setPictures({{"a.gif", ""}});
    other.set("background", "backEffect", effect);
    other.openDialog().form.Ok.userClicked();
    EXPECT_TRUE(other.dialogs.messages.empty());
    EXPECT_TRUE(other.loop.isQuitting());
  }
}

TEST_F(SaveSettingsTest, ADayThatDoesNotExistIsRefusedForACountdown) {
  machine.set("date", "countdownMonth", "02");
  machine.set("date", "countdownDay", "30");
  machine.set("date", "countdownYear", "2004");
  Form2& form = openWithPictures();
  expectRefused(form, kBadDate);
  form.timeOption.userClicked();
  expectSaved(form);
  EXPECT_EQ(saved("date", "countdownDay"), "30") << "without a countdown the date is not looked at";
}

TEST_F(SaveSettingsTest, EmptyOrWordyDatesAreRefusedForACountdown) {
  Form2& form = openWithPictures();
  form.record.countdownMonth = "Month";
  expectRefused(form, kBadDate);
  form.record.countdownMonth = "";
  expectRefused(form, kBadDate);
  form.record.countdownMonth = "12";
  expectSaved(form);
}

TEST_F(SaveSettingsTest, LeapYearsAreRightFrom2000To2040) {
  Form2& form = openWithPictures();
  machine.files.writable = false;  // so that each year finds the same file
  for (int year = 2000; year <= 2040; ++year) {
    machine.windows.show(form);
    form.record.countdownMonth = "02";
    form.record.countdownDay = "29";
    form.record.countdownYear = std::to_string(year);
    EXPECT_EQ(SaveSettings(form), year % 4 == 0) << year;
  }
}

TEST_F(SaveSettingsTest, WithoutANumberForTheClockTheDateIsReported) {
  machine.set("image", "timeDisplay", "");
  machine.setPictures({{"a.gif", ""}});
  Form2& form = machine.openDialog().form;
  ASSERT_FALSE(form.loadedWell());
  expectRefused(form, kBadDate);
  form.noneOption.userClicked();
  machine.dialogs.messages.clear();
  form.Ok.userClicked();
  EXPECT_TRUE(machine.dialogs.messages.empty());
}

TEST_F(SaveSettingsTest, TheHourglassIsShownWhileTheDialogChecksAndWrites) {
  struct Pointer : support::FakeWindowSystem {
    std::vector<forms::MousePointer> pointers;
    void formChanged(forms::Form& form, forms::FormChange change) override {
      if (change == forms::FormChange::MousePointer) pointers.push_back(form.mousePointer());
    }
  } windows;
  machine.setPictures({{"a.gif", ""}});
  machine.writeSettings();
  Form2 form({machine.files, machine.ansi, machine.pictures, machine.dialogs, windows},
             machine.kProgramFolder);
  windows.show(form);
  EXPECT_TRUE(SaveSettings(form));
  EXPECT_EQ(windows.pointers,
            (std::vector<forms::MousePointer>{forms::MousePointer::Hourglass, forms::MousePointer::Default}));
  EXPECT_EQ(static_cast<int>(windows.pointers[0]), 11);
}

TEST_F(SaveSettingsTest, TheDefaultPointerIsBackBeforeTheMessage) {
  struct Watching : support::FakeDialogs {
    const Form2* form = nullptr;
    std::vector<forms::MousePointer> pointers;
    forms::Answer messageBox(const std::string& text, std::uint32_t style) override {
      pointers.push_back(form->mousePointer());
      return FakeDialogs::messageBox(text, style);
    }
  } dialogs;
  machine.set("total", "total", "1");
  machine.writeSettings();
  Form2 form({machine.files, machine.ansi, machine.pictures, dialogs, machine.windows},
             machine.kProgramFolder);
  dialogs.form = &form;
  machine.windows.show(form);
  EXPECT_FALSE(SaveSettings(form)) << "no image";
  form.List1.setItem(0, "a.gif");
  form.record.backEffect = "2";
  EXPECT_FALSE(SaveSettings(form)) << "no background image";
  form.record.backEffect = "0";
  form.record.countdownDay = "31";
  EXPECT_FALSE(SaveSettings(form)) << "no such date";
  EXPECT_EQ(dialogs.pointers, std::vector<forms::MousePointer>(3, forms::MousePointer::Default));
  machine.windows.unload(form);
}

TEST_F(SaveSettingsTest, OkAndTheMenuSaveAlikeAndEndTheProgram) {
  expectSaved(openWithPictures());
  SettingsDialogMachine other;
  other.setPictures({{"a.gif", "A"}, {"b.gif", ""}, {"c.gif", "C"}});
  other.openDialog().form.Save.userClicked();
  EXPECT_TRUE(other.loop.isQuitting());
  EXPECT_EQ(other.files.content[other.kIniPath], file());
}

TEST_F(SaveSettingsTest, CancelAndExitEndTheProgramWithoutAQuestionOrAWrite) {
  for (const bool byMenu : {false, true}) {
    SettingsDialogMachine other;
    other.setPictures({{"a.gif", "A"}});
    Form2& form = other.openDialog().form;
    const std::string before = other.files.content[other.kIniPath];
    form.p_caption.userTyped("changed");
    if (byMenu) {
      form.Exit.userClicked();
    } else {
      form.Cancel.userClicked();
    }
    EXPECT_TRUE(other.loop.isQuitting());
    EXPECT_TRUE(other.files.writes.empty());
    EXPECT_EQ(other.files.content[other.kIniPath], before);
    EXPECT_TRUE(other.dialogs.messages.empty());
    EXPECT_EQ(other.windows.unloaded, std::vector<std::string>{"Form2"});
  }
}

TEST_F(SaveSettingsTest, ThreePicturesAreWrittenWithOneMoreEmptyKey) {
  expectSaved(openWithPictures());
  const settings::IniDocument document(file(), machine.ansi);
  EXPECT_EQ(saved("images", "0") + saved("images", "1") + saved("images", "2"), "a.gifb.gifc.gif");
  EXPECT_TRUE(document.has("images", "3"));
  EXPECT_EQ(saved("images", "3"), "");
  EXPECT_FALSE(document.has("images", "4"));
  EXPECT_EQ(saved("total", "total"), "3");
  EXPECT_EQ(saved("caption", "0") + saved("caption", "1") + saved("caption", "2"), "AC");
  EXPECT_TRUE(document.has("caption", "3"));
}

TEST_F(SaveSettingsTest, RemovedPicturesDisappearFromTheFile) {
  Form2& form = openWithPictures();
  form.List1.userSelected(2);
  form.remove.userClicked();
  form.remove.userClicked();
  expectSaved(form);
  const settings::IniDocument document(file(), machine.ansi);
  EXPECT_EQ(saved("total", "total"), "1");
  EXPECT_FALSE(document.has("images", "2"));
  EXPECT_FALSE(document.has("caption", "3"));
}

// A file as a user may have edited it, and what a save makes of it.
constexpr char kBefore[] =
    "; my settings\r\n"
    "[firstrun]\r\n"
    "samples=0\r\n"
    "\r\n"
    "[images]\r\n"
    "; pictures of the summer\r\n"
    "0=C:\\a.gif\r\n"
    "1=C:\\b.gif\r\n"
    "2=\r\n"
    "[total]\r\n"
    "total=2\r\n"
    "[caption]\r\n"
    "0=\xE9t\xE9\r\n"
    "1=two\r\n"
    "2=\r\n"
    "[image]\r\n"
    "randomPick = 0\r\n"
    "picSpeed=2\r\n"
    "timeInterval=10\r\n"
    "picRandom=cent\r\n"
    "picChange=ch\r\n"
    "mouseSensitivity=23\r\n"
    "picturePercent=90\r\n"
    "timeDisplay=1\r\n"
    "myOwnKey=kept\r\n"
    "[background]\r\n"
    "newBackColor=0\r\n"
    "backEffect=3\r\n"
    "backgroundImage=\r\n"
    "backgroundDisplay=1\r\n"
    "redBackground=8\r\n"
    "greenBackground=28\r\n"
    "blueBackground=96\r\n"
    "[font]\r\n"
    "newFontName=Arial\r\n"
    "newFontSize=20\r\n"
    "newFontBold=False\r\n"
    "newFontItalic=False\r\n"
    "newFontUnderline=False\r\n"
    "newFontFontStrikethru=False\r\n"
    "newFontForeColor=16777215\r\n"
    "scroll=1\r\n"
    "scrollSpeed=200\r\n"
    "[transitions]\r\n"
    "bStandard=1\r\n"
    "bLeftWipe=1\r\n"
    "bRightWipe=1\r\n"
    "bRightandLeftWipe=1\r\n"
    "bUpAndDown=1\r\n"
    "bCenter=1\r\n"
    "bHorizontalBlinds=1\r\n"
    "bVerticalBlinds=1\r\n"
    "bFade=1\r\n"
    "[date]\r\n"
    "countdownMonth=01\r\n"
    "countdownDay=01\r\n"
    "countdownYear=2030\r\n"
    "[extras]\r\n"
    "transitionTime=700\r\n"
    "[of another program]\r\n"
    "key=value\r\n";

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
  const std::size_t at = text.find(what);
  EXPECT_NE(at, std::string::npos) << what;
  return text.replace(at, what.size(), with);
}

TEST_F(SaveSettingsTest, AnUntouchedDialogWritesTheFileBackByteForByte) {
  file() = kBefore;
  for (const char* path : {"C:\\a.gif", "C:\\b.gif"}) machine.pictures.add(path, {4, 3}, 0);
  expectSaved(machine.openDialogOnFile().form);
  EXPECT_EQ(file(), kBefore);
  EXPECT_EQ(machine.files.writes, std::vector<std::string>{machine.kIniPath}) << "in one step";
}

TEST_F(SaveSettingsTest, WhatWasChangedAndNothingElseChangesInTheFile) {
  file() = kBefore;
  for (const char* path : {"C:\\a.gif", "C:\\b.gif", "C:\\c.gif"}) machine.pictures.add(path, {4, 3}, 0);
  Form2& form = machine.openDialogOnFile().form;
  machine.dialogs.files.push_back("C:\\c.gif");
  form.add.userClicked();
  form.p_caption.userTyped("three");
  form.up.userClicked();
  form.Random_select.userClicked();
  form.PercentSlider.userSetValue(50);
  form.Fade.userClicked();
  form.yearOption.userClicked();
  form.dayCombo.userSelected(24);
  expectSaved(form);
  std::string expected = Replaced(kBefore, "1=C:\\b.gif\r\n2=\r\n", "1=C:\\c.gif\r\n2=C:\\b.gif\r\n3=\r\n");
  expected = Replaced(expected, "total=2", "total=3");
  expected = Replaced(expected, "1=two\r\n2=\r\n", "1=three\r\n2=two\r\n3=\r\n");
  expected = Replaced(expected, "randomPick = 0", "randomPick = 1");
  expected = Replaced(expected, "picturePercent=90", "picturePercent=50");
  expected = Replaced(expected, "bFade=1", "bFade=0");
  expected = Replaced(expected, "timeDisplay=1", "timeDisplay=2");
  expected = Replaced(expected, "countdownDay=01", "countdownDay=25");
  EXPECT_EQ(file(), expected);
}

TEST_F(SaveSettingsTest, WithoutAFileAWholeOneIsWrittenInTheOrderOfTheKeys) {
  Form2& form = machine.openDialogOnFile().form;
  ASSERT_FALSE(form.loadedWell());
  machine.pictures.add("C:\\a.gif", {4, 3}, 0);
  machine.dialogs.files.push_back("C:\\a.gif");
  form.add.userClicked();
  form.timeOption.userClicked();
  expectSaved(form);
  EXPECT_EQ(file(),
            "[images]\r\n0=C:\\a.gif\r\n1=\r\n[total]\r\ntotal=1\r\n[caption]\r\n0=\r\n1=\r\n"
            "[image]\r\nrandomPick=0\r\npicSpeed=2\r\ntimeInterval=10\r\npicRandom=cent\r\npicChange=ch\r\n"
            "mouseSensitivity=23\r\npicturePercent=99\r\ntimeDisplay=1\r\n"
            "[background]\r\nnewBackColor=0\r\nbackEffect=3\r\nbackgroundImage=\r\nbackgroundDisplay=1\r\n"
            "redBackground=0\r\ngreenBackground=0\r\nblueBackground=128\r\n"
            "[font]\r\nscroll=1\r\nscrollSpeed=200\r\nnewFontName=Arial\r\nnewFontSize=20\r\n"
            "newFontBold=False\r\nnewFontItalic=False\r\nnewFontUnderline=False\r\n"
            "newFontFontStrikethru=False\r\nnewFontForeColor=16777215\r\n"
            "[transitions]\r\nbStandard=1\r\nbLeftWipe=1\r\nbRightWipe=1\r\nbRightandLeftWipe=1\r\n"
            "bUpAndDown=1\r\nbCenter=1\r\nbHorizontalBlinds=1\r\nbVerticalBlinds=1\r\nbFade=1\r\n"
            "[date]\r\ncountdownMonth=01\r\ncountdownDay=01\r\ncountdownYear=2030\r\n");
  EXPECT_FALSE(machine.files.content.contains(machine.kBakPath)) << "there was nothing to keep";
}

TEST_F(SaveSettingsTest, ACharacterOutsideTheCodePageMakesTheFileUtf16AndComesBack) {
  Form2& form = openWithPictures();
  form.p_caption.userTyped("\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE");
  expectSaved(form);
  EXPECT_TRUE(file().starts_with("\xFF\xFE"));
  SettingsDialogMachine again;
  again.files.content = machine.files.content;
  again.pictures.add("a.gif", {4, 3}, 0);
  EXPECT_EQ(again.openDialogOnFile().form.p_caption.text(), "\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE");
}

TEST_F(SaveSettingsTest, AChangedExtraIsWrittenAndTheOthersStay) {
  file() = kBefore;
  for (const char* path : {"C:\\a.gif", "C:\\b.gif"}) machine.pictures.add(path, {4, 3}, 0);
  Form2& form = machine.openDialogOnFile().form;
  form.record.otherScreens = "black";
  expectSaved(form);
  EXPECT_EQ(file(),
            Replaced(kBefore, "transitionTime=700\r\n", "transitionTime=700\r\notherScreens=black\r\n"));
}

TEST_F(SaveSettingsTest, TheShowReadsWhatTheDialogSaved) {
  Form2& form = openWithPictures();
  form.up.userClicked();
  expectSaved(form);
  settings::SaverSettings loaded;
  settings::LoadSettings(loaded, settings::OpenSettings(machine.files, machine.ansi, machine.kProgramFolder),
                         settings::Conversion::Strict);
  EXPECT_EQ(loaded.imageFiles, (std::vector<std::string>{"a.gif", "b.gif", "c.gif", ""}));
  EXPECT_EQ(loaded.imageCaptions, (std::vector<std::string>{"A", "", "C", ""}));
  EXPECT_EQ(loaded.lastImageIndex, 2);
  EXPECT_EQ(loaded.countdownTarget, "02/29/2004 12:00:00 AM");
}

TEST_F(SaveSettingsTest, SavingClearsTheFirstRunMarker) {
  machine.files.writable = false;  // the seeding of this run cannot be written
  machine.set("firstrun", "samples", "1");
  machine.set("total", "total", "2");
  Form2& form = machine.openDialog().form;
  EXPECT_EQ(form.List1.item(0), "C:\\Lumora\\image1.gif");
  form.List1.setListIndex(0);
  form.remove.userClicked();
  machine.files.writable = true;
  expectSaved(form);
  EXPECT_EQ(saved("firstrun", "samples"), "0");
  EXPECT_EQ(saved("images", "0"), "C:\\Lumora\\image2.gif");
}

}  // namespace
}  // namespace dialog
