#include <gtest/gtest.h>

#include "base/color.h"
#include "dialog/messages.h"
#include "support/dialog_machine.h"

namespace dialog {
namespace {

using support::FakeDialogs;

struct Form2Load : testing::Test {
  support::DialogMachine machine;
};

TEST_F(Form2Load, BeforeAnythingIsReadTheCombosShowWhatTheyAreFor) {
  const std::unique_ptr<Form2> design = machine.untouched();
  EXPECT_EQ(design->monthCombo.text(), "Month");
  EXPECT_EQ(design->dayCombo.text(), "Day");
  EXPECT_EQ(design->yearCombo.text(), "Year");
}

TEST_F(Form2Load, ThePictureListComesWithItsCaptions) {
  machine.set("total", "total", "3");
  machine.set("images", "0", "C:\\a.gif");
  machine.set("images", "1", "C:\\b.gif");
  machine.set("caption", "1", "Second");
  Form2& form = machine.open();
  EXPECT_EQ(form.List1.items(), (std::vector<std::string>{"C:\\a.gif", "C:\\b.gif", ""}));
  EXPECT_EQ(form.photo_caption.items(), (std::vector<std::string>{"", "Second", ""}));
  EXPECT_EQ(form.Text3.text(), "Total: 3");
  EXPECT_EQ(form.List1.listIndex(), 0);
  EXPECT_TRUE(machine.dialogs.messages.empty());
}

TEST_F(Form2Load, SelectingTheFirstPictureRaisesItsClick) {
  machine.set("total", "total", "1");
  machine.set("images", "0", "C:\\a.gif");
  std::unique_ptr<Form2> form;
  machine.writeSettings();
  form = std::make_unique<Form2>(
      DialogServices{machine.files, machine.ansi, machine.pictures, machine.dialogs, machine.windows},
      support::DialogMachine::kProgramFolder);
  std::string clicked;
  form->List1.onClick = [&] { clicked += form->List1.text(); };
  machine.windows.show(*form);
  EXPECT_EQ(clicked, "C:\\a.gif");
}

TEST_F(Form2Load, AnEmptyListSelectsNothingWithoutAMessage) {
  Form2& form = machine.open();
  EXPECT_EQ(form.List1.listIndex(), -1);
  EXPECT_EQ(form.Text3.text(), "Total: 0");
  EXPECT_TRUE(machine.dialogs.messages.empty());
}

TEST_F(Form2Load, AMissingFileIsTheSameFailure) {
  Form2 form(DialogServices{machine.files, machine.ansi, machine.pictures, machine.dialogs, machine.windows},
             "C:\\elsewhere\\");
  machine.windows.show(form);
  EXPECT_EQ(machine.dialogs.messages, std::vector{support::kSettingsNotLoaded});
  EXPECT_EQ(machine.files.reads, std::vector<std::string>{"C:\\elsewhere\\zbfaone.ini"});
  machine.windows.unload(form);
}

TEST_F(Form2Load, AMissingRandomPickLeavesTheListLoadedAndTheRestAsDesigned) {
  machine.set("total", "total", "2");
  machine.set("images", "0", "C:\\a.gif");
  machine.set("images", "1", "C:\\b.gif");
  machine.drop("image", "randomPick");
  Form2& form = machine.open();
  EXPECT_EQ(form.Text3.text(), "Total: 2");
  EXPECT_EQ(form.List1.listCount(), 2);
  EXPECT_EQ(machine.dialogs.messages, std::vector{support::kSettingsNotLoaded});
  EXPECT_EQ(form.MouseSensitiveSlider.value(), 23);
  EXPECT_TRUE(form.aChange.value());
}

TEST_F(Form2Load, TheRecordHoldsWhatWasReadAlthoughHandlersRan) {
  machine.set("image", "picChange", "not_ch");  // its handler clears the interval and the random order
  machine.set("image", "timeInterval", "77");
  machine.set("image", "timeDisplay", "7");
  machine.set("background", "redBackground", "0300");
  Form2& form = machine.open();
  EXPECT_EQ(form.record.randomPick, "1");
  EXPECT_EQ(form.Random_select.value(), 0);
  EXPECT_EQ(form.record.picChange, "not_ch");
  EXPECT_EQ(form.record.timeInterval, "77");
  EXPECT_EQ(form.record.timeDisplay, "7");
  EXPECT_EQ(form.record.redBackground, "0300");
  EXPECT_EQ(form.record.greenBackground, "20");
}

TEST_F(Form2Load, TheExtraKeysPassThrough) {
  machine.set("extras", "transitionTime", "250");
  EXPECT_EQ(machine.open().record.transitionTime, "250");
}

TEST_F(Form2Load, TheWindowStandsInTheMiddleOfTheScreen) {
  Form2 form(DialogServices{machine.files, machine.ansi, machine.pictures, machine.dialogs, machine.windows},
             "C:");
  form.windowSized(9600, 7200);
  machine.windows.show(form);
  EXPECT_EQ(form.left(), (1920 * 15 - 9600) / 2);
  EXPECT_EQ(form.top(), (1080 * 15 - 7200) / 2);
  machine.windows.unload(form);
}

TEST_F(Form2Load, OnOpeningTheCombosStayUsableAndTheirColourTells) {
  for (const auto& [display, color] : {std::pair{"0", base::kThreeDLight}, std::pair{"1", base::kThreeDLight},
                                       std::pair{"2", base::kWindowBackground}}) {
    SCOPED_TRACE(display);
    support::DialogMachine other;
    other.set("image", "timeDisplay", display);
    Form2& form = other.open();
    for (forms::ComboBox* combo : {&form.monthCombo, &form.dayCombo, &form.yearCombo}) {
      EXPECT_TRUE(combo->enabled());
      EXPECT_EQ(combo->backColor(), color);
    }
    for (forms::OptionButton* option : {&form.noneOption, &form.timeOption, &form.yearOption}) {
      EXPECT_TRUE(option->enabled());
    }
  }
}

TEST_F(Form2Load, TheBackgroundPictureIsShownAtTheSizeOfItsPreview) {
  machine.set("background", "backgroundImage", "C:\\back.bmp");
  machine.pictures.add("C:\\back.bmp", {4000, 2000}, base::Rgb(1, 2, 3));
  Form2& form = machine.open();
  EXPECT_TRUE(machine.dialogs.messages.empty());
  EXPECT_EQ(form.backgroundImageFile.text(), "C:\\back.bmp");
  EXPECT_EQ(form.record.backgroundImage, "C:\\back.bmp");
  ASSERT_TRUE(form.Image1.picture());
  const base::PixelSize box = form.Image1.pixelRect().size();
  EXPECT_EQ(form.Image1.picture()->size(), (base::PixelSize{box.width, box.width / 2}));
}

TEST_F(Form2Load, ABackgroundPictureThatCannotBeLoadedHasItsOwnMessage) {
  machine.pictures.addBroken("C:\\broken.bmp", {40, 40});
  for (const char* path : {"C:\\missing.bmp", "C:\\broken.bmp"}) {
    SCOPED_TRACE(path);
    machine.dialogs.messages.clear();
    machine.set("background", "backgroundImage", path);
    machine.set("total", "total", "1");
    machine.set("images", "0", "C:\\a.gif");
    Form2& form = machine.open();
    EXPECT_EQ(machine.dialogs.messages, (std::vector<FakeDialogs::Message>{{kCouldNotLoadBackground, 48}}));
    EXPECT_EQ(form.backgroundImageFile.text(), path);
    EXPECT_EQ(form.record.backgroundImage, path);
    EXPECT_FALSE(form.Image1.picture());
    EXPECT_EQ(form.List1.listIndex(), 0) << "the rest is unaffected";
    EXPECT_TRUE(form.loadedWell());
  }
}

TEST_F(Form2Load, ThirtyThousandPicturesCostOneStep) {
  machine.set("total", "total", "30000");
  for (int i = 0; i < 30000; ++i)
    machine.set("images", std::to_string(i), "C:\\photos\\" + std::to_string(i));
  Form2& form = machine.open();
  EXPECT_EQ(form.List1.listCount(), 30000);
  EXPECT_EQ(form.List1.item(29999), "C:\\photos\\29999");
  EXPECT_LE(machine.windows.listEdits, 4);
  EXPECT_EQ(form.SS_StatusBar.panelText(2), "");
}

TEST_F(Form2Load, ALongerListThanTheShowCanUseIsShownAndSaid) {
  for (const int count : {32767, 32768, 100000}) {
    SCOPED_TRACE(count);
    support::DialogMachine other;
    other.set("total", "total", std::to_string(count));
    other.set("images", std::to_string(count - 1), "C:\\last.gif");
    Form2& form = other.open();
    EXPECT_TRUE(other.dialogs.messages.empty());
    EXPECT_EQ(form.List1.listCount(), count);
    EXPECT_EQ(form.List1.item(count - 1), "C:\\last.gif");
    EXPECT_EQ(form.Text3.text(), "Total: " + std::to_string(count));
    EXPECT_LE(other.windows.listEdits, 4);
    EXPECT_EQ(form.SS_StatusBar.panelText(2),
              count > 32767 ? "The show can use 32,767 pictures at most." : "");
  }
}

// A setting of today that yesterday's file does not know would be the last row of the table.
TEST_F(Form2Load, SettingsBeyondTheDocumentedOnesAreReadAndNotMissed) {
  machine.set("extras", "transitionTime", "250");
  Form2& form = machine.open();
  EXPECT_TRUE(form.loadedWell());
  EXPECT_EQ(form.loaded().transitionTime, "250");
  EXPECT_EQ(form.loaded().log, "");
}

}  // namespace
}  // namespace dialog
