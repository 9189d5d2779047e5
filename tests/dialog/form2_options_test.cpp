#include <gtest/gtest.h>

#include "base/color.h"
#include "support/dialog_machine.h"

namespace dialog {
namespace {

using settings::SettingsRecord;

struct Form2Options : testing::Test {
  support::DialogMachine machine;
  Form2& form = machine.open();

  // Names of the controls that are enabled among those of a page's rules.
  static std::string enabled(std::initializer_list<forms::Control*> controls) {
    std::string names;
    for (const forms::Control* control : controls) names += control->enabled() ? control->name() + " " : "";
    return names;
  }
};

TEST_F(Form2Options, EachBackgroundEnablesItsOwnControlsAndColoursItsFrame) {
  struct Row {
    forms::OptionButton& option;
    const char* backEffect;
    forms::Frame* blue;
    base::PackedColor fileColor;
    const char* enabled;
  };
  const char* solid = "frameBackgroundColor backColorClick ";
  const char* custom =
      "frameCustomImage CenterOption FullScreenOption TileOption backgroundImageFile addBackImg "
      "removeBackImg ";
  const char* gradient = "frameColorGradient redSlider greenSlider blueSlider ";
  form.backgroundColorGradient.setValue(true);
  for (const Row& row :
       {Row{form.backgroundColor, "0", &form.frameBackgroundColor, base::kThreeDLight, solid},
        Row{form.backgroundDesktop, "1", nullptr, base::kThreeDLight, ""},
        Row{form.backgroundCustomImage, "2", &form.frameCustomImage, base::kWindowBackground, custom},
        Row{form.backgroundColorGradient, "3", &form.frameColorGradient, base::kThreeDLight, gradient}}) {
    SCOPED_TRACE(row.backEffect);
    row.option.userClicked();
    EXPECT_EQ(form.record.backEffect, row.backEffect);
    EXPECT_EQ(form.backgroundImageFile.backColor(), row.fileColor);
    for (forms::Frame* frame :
         {&form.frameBackgroundColor, &form.frameCustomImage, &form.frameColorGradient}) {
      EXPECT_EQ(frame->foreColor(), frame == row.blue ? 16711680 : base::kButtonText) << frame->name();
    }
    EXPECT_EQ(enabled({&form.frameBackgroundColor, &form.backColorClick, &form.frameCustomImage,
                       &form.CenterOption, &form.FullScreenOption, &form.TileOption,
                       &form.backgroundImageFile, &form.addBackImg, &form.removeBackImg,
                       &form.frameColorGradient, &form.redSlider, &form.greenSlider, &form.blueSlider}),
              row.enabled);
  }
}

TEST_F(Form2Options, TheGroupsAreEnabledInTheOrderSolidColourCustomImageGradient) {
  const auto order = [this](forms::OptionButton& option) {
    machine.windows.changes.clear();
    option.userClicked();
    std::string names;
    for (const auto& [name, change] : machine.windows.changes) {
      if (change == forms::Change::Enabled && name.starts_with("frame")) names += name + " ";
    }
    return names;
  };
  form.backgroundDesktop.userClicked();
  EXPECT_EQ(order(form.backgroundColorGradient), "frameColorGradient ");
  EXPECT_EQ(order(form.backgroundCustomImage), "frameCustomImage frameColorGradient ");
  EXPECT_EQ(order(form.backgroundColor), "frameBackgroundColor frameCustomImage ");
  EXPECT_EQ(order(form.backgroundColorGradient), "frameBackgroundColor frameColorGradient ");
}

TEST_F(Form2Options, AClickOnWhatIsChosenRunsItsHandler) {
  form.record.picRandom = form.record.picChange = form.record.scroll = form.record.backEffect = "";
  form.record.timeDisplay = form.record.backgroundDisplay = "";
  for (forms::OptionButton* chosen : {&form.pRandom, &form.aChange, &form.scrollOption, &form.backgroundColor,
                                      &form.yearOption, &form.TileOption}) {
    ASSERT_TRUE(chosen->value()) << chosen->name();
    chosen->userClicked();
  }
  EXPECT_EQ(form.record.picRandom + form.record.picChange + form.record.scroll, "randch0");
  EXPECT_EQ(form.record.backEffect + form.record.timeDisplay + form.record.backgroundDisplay, "022");
}

TEST_F(Form2Options, TheCustomImageIsLaidOutAsChosen) {
  form.CenterOption.userClicked();
  EXPECT_EQ(form.record.backgroundDisplay, "0");
  form.FullScreenOption.userClicked();
  EXPECT_EQ(form.record.backgroundDisplay, "1");
  form.TileOption.userClicked();
  EXPECT_EQ(form.record.backgroundDisplay, "2");
}

TEST_F(Form2Options, TheColourDialogStartsOnTheColourAndGivesAnother) {
  machine.dialogs.colors.push_back(base::Rgb(1, 2, 3));
  form.backColorClick.userClicked();
  ASSERT_EQ(machine.dialogs.colorRequests.size(), 1U);
  EXPECT_EQ(machine.dialogs.colorRequests[0].initial, 255);
  EXPECT_EQ(machine.dialogs.colorRequests[0].flags, 1U);
  EXPECT_EQ(form.record.newBackColor, "197121");
  EXPECT_EQ(form.Picture1.backColor(), base::Rgb(1, 2, 3));
  form.backColorClick.userClicked();
  EXPECT_EQ(machine.dialogs.colorRequests[1].initial, base::Rgb(1, 2, 3));
}

TEST_F(Form2Options, CancellingTheColourDialogChangesNothing) {
  form.backColorClick.userClicked();
  EXPECT_EQ(machine.dialogs.colorRequests.size(), 1U);
  EXPECT_EQ(form.record.newBackColor, "255");
  EXPECT_EQ(form.Picture1.backColor(), 255);
  EXPECT_EQ(form.dlgDialog2.color, 255);
}

TEST_F(Form2Options, TheColourSlidersSetSwatchFieldAndPreview) {
  form.redSlider.userSetValue(255);
  EXPECT_EQ(form.record.redBackground, "255");
  EXPECT_EQ(form.redPicture.backColor(), 0x0000FF);
  form.greenSlider.userSetValue(128);
  EXPECT_EQ(form.record.greenBackground, "128");
  EXPECT_EQ(form.greenPicture.backColor(), 0x008000);
  form.blueSlider.userSetValue(1);
  EXPECT_EQ(form.record.blueBackground, "1");
  EXPECT_EQ(form.bluePicture.backColor(), 0x010000);
  const base::SharedBitmap shown = form.GradientPicture.image();
  EXPECT_EQ(shown->size(), form.GradientPicture.scaleSize());
  EXPECT_EQ(shown->at(0, 0), base::OpaquePixel(base::Rgb(255, 128, 1)));
  EXPECT_EQ(shown->at(shown->size().width - 1, shown->size().height / 2),
            base::OpaquePixel(base::Rgb(127, 0, 0)));
}

TEST_F(Form2Options, TheGradientSurvivesAComponentThatWasNeverRead) {
  form.record.greenBackground = "";
  form.record.blueBackground = "blue";
  form.redSlider.userSetValue(200);
  EXPECT_EQ(form.GradientPicture.image()->at(0, 0), base::OpaquePixel(base::Rgb(200, 0, 0)));
}

TEST_F(Form2Options, NeverChangingTurnsTheIntervalOff) {
  const std::initializer_list<forms::Control*> controls = {&form.Text2, &form.Label3, &form.changeVScroll1,
                                                           &form.Random_select};
  EXPECT_EQ(enabled(controls), "Text2 Label3 changeVScroll1 Random_select ");
  form.nChange.userClicked();
  EXPECT_EQ(form.record.picChange, "not_ch");
  EXPECT_EQ(form.record.timeInterval, "0");
  EXPECT_EQ(form.Text2.text(), "0");
  EXPECT_EQ(form.Text2.backColor(), base::kThreeDLight);
  EXPECT_EQ(enabled(controls), "");
  EXPECT_EQ(form.Random_select.value(), 0);
  EXPECT_EQ(form.record.randomPick, "0");
  form.aChange.userClicked();
  EXPECT_EQ(form.record.picChange, "ch");
  EXPECT_EQ(form.Text2.backColor(), base::kWindowBackground);
  EXPECT_EQ(enabled(controls), "Text2 Label3 changeVScroll1 Random_select ");
}

TEST_F(Form2Options, ChangingAgainLeavesTheIntervalAtZeroUntilTheScrollBarMoves) {
  form.nChange.userClicked();
  form.aChange.userClicked();
  EXPECT_EQ(form.record.timeInterval, "0");
  EXPECT_EQ(form.Text2.text(), "0");
  form.changeVScroll1.userSetValue(15);
  EXPECT_EQ(form.record.timeInterval, "15");
  EXPECT_EQ(form.Text2.text(), "15");
}

TEST_F(Form2Options, TheScrollBarRunsToAnHourUpForMore) {
  EXPECT_EQ(form.changeVScroll1.min(), 3600);
  EXPECT_EQ(form.changeVScroll1.max(), 0);
}

TEST_F(Form2Options, ANumberTypedMovesTheScrollBar) {
  form.Text2.userTyped("120");
  EXPECT_EQ(form.changeVScroll1.value(), 120);
  EXPECT_EQ(form.record.timeInterval, "120");
  form.Text2.userTyped("9999");
  EXPECT_EQ(form.changeVScroll1.value(), 3600);
  EXPECT_EQ(form.Text2.text(), "3600");
  form.Text2.userTyped("");
  EXPECT_EQ(form.record.timeInterval, "3600") << "a half-typed text moves nothing";
  form.Text2.onLostFocus();
  EXPECT_EQ(form.Text2.text(), "3600") << "the text shows the interval again";
}

TEST_F(Form2Options, RandomOrderIsAFlag) {
  form.Random_select.userClicked();
  EXPECT_EQ(form.record.randomPick, "0");
  form.Random_select.userClicked();
  EXPECT_EQ(form.record.randomPick, "1");
}

TEST_F(Form2Options, FloatingEnablesItsSpeed) {
  form.pCenter.userClicked();
  EXPECT_EQ(form.record.picRandom, "cent");
  EXPECT_EQ(enabled({&form.floatSlider, &form.Label5_FloatSpeed}), "");
  form.pRandom.userClicked();
  EXPECT_EQ(form.record.picRandom, "rand");
  EXPECT_EQ(enabled({&form.floatSlider, &form.Label5_FloatSpeed}), "floatSlider Label5(0) ");
  form.floatSlider.userSetValue(1);
  EXPECT_EQ(form.record.picSpeed, "1");
}

TEST_F(Form2Options, ScrollingEnablesItsSpeed) {
  form.middleOption.userClicked();
  EXPECT_EQ(form.record.scroll, "1");
  EXPECT_FALSE(form.scrollSlider.enabled());
  form.scrollOption.userClicked();
  EXPECT_EQ(form.record.scroll, "0");
  EXPECT_TRUE(form.scrollSlider.enabled());
  form.scrollSlider.userSetValue(222);
  EXPECT_EQ(form.record.scrollSpeed, "222");
}

TEST_F(Form2Options, TheFontDialogStartsOnTheFontAndGivesAnother) {
  machine.dialogs.fonts.push_back(
      forms::ChosenFont{{"Georgia", 17.25F, false, true, false, true}, base::Rgb(0, 0, 1)});
  form.font.userClicked();
  ASSERT_EQ(machine.dialogs.fontRequests.size(), 1U);
  const forms::FontRequest& asked = machine.dialogs.fontRequests[0];
  EXPECT_EQ(asked.flags, 8449U);
  EXPECT_EQ(asked.minPoints, 10);
  EXPECT_EQ(asked.maxPoints, 48);
  EXPECT_EQ(asked.font, (base::Font{"Verdana", 12.5F, true, false, true, false}));
  EXPECT_EQ(asked.color, 65280);
  EXPECT_EQ(form.record.newFontName, "Georgia");
  EXPECT_EQ(form.record.newFontSize, "17.25");
  EXPECT_EQ(form.record.newFontBold, "False");
  EXPECT_EQ(form.record.newFontItalic, "True");
  EXPECT_EQ(form.record.newFontUnderline, "False");
  EXPECT_EQ(form.record.newFontFontStrikethru, "True");
  EXPECT_EQ(form.record.newFontForeColor, "65536");
  EXPECT_EQ(form.Picture2.backColor(), 65536);
  form.font.userClicked();
  EXPECT_EQ(machine.dialogs.fontRequests[1].font.name, "Georgia");
}

TEST_F(Form2Options, CancellingTheFontDialogChangesNothing) {
  const SettingsRecord before = form.record;
  form.font.userClicked();
  EXPECT_EQ(machine.dialogs.fontRequests.size(), 1U);
  EXPECT_EQ(form.record.newFontName, before.newFontName);
  EXPECT_EQ(form.record.newFontSize, "12.5");
  EXPECT_EQ(form.record.newFontForeColor, "65280");
  EXPECT_EQ(form.Picture2.backColor(), 65280);
  EXPECT_EQ(form.dlgDialog.font.name, "Verdana");
}

TEST_F(Form2Options, MouseSensitivityHasADefault) {
  form.MouseSensitiveSlider.userSetValue(5);
  EXPECT_EQ(form.record.mouseSensitivity, "5");
  form.defaultMouseSensitivity.userClicked();
  EXPECT_EQ(form.record.mouseSensitivity, "23");
  EXPECT_EQ(form.MouseSensitiveSlider.value(), 23);
  form.record.mouseSensitivity = "99";
  form.defaultMouseSensitivity.userClicked();
  EXPECT_EQ(form.record.mouseSensitivity, "23") << "also when the slider stands there already";
}

TEST_F(Form2Options, ThePercentageIsShownBesideItsSlider) {
  form.PercentSlider.userSetValue(80);
  EXPECT_EQ(form.record.picturePercent, "80");
  EXPECT_EQ(form.percentLabel.caption(), "80%");
}

TEST_F(Form2Options, EachTransitionIsAFlagOfItsOwnAndAllMayBeOff) {
  struct Row {
    forms::CheckBox& box;
    std::string SettingsRecord::*field;
  };
  for (const Row& row : {Row{form.Standard, &SettingsRecord::bStandard},
                         {form.LWipe, &SettingsRecord::bLeftWipe},
                         {form.RWipe, &SettingsRecord::bRightWipe},
                         {form.RLWipe, &SettingsRecord::bRightandLeftWipe},
                         {form.UDWipe, &SettingsRecord::bUpAndDown},
                         {form.CenterWipe, &SettingsRecord::bCenter},
                         {form.HorizontalBlinds, &SettingsRecord::bHorizontalBlinds},
                         {form.VerticalBlinds, &SettingsRecord::bVerticalBlinds},
                         {form.Fade, &SettingsRecord::bFade}}) {
    SCOPED_TRACE(row.box.name());
    row.box.setValue(1);
    EXPECT_EQ(form.record.*row.field, "1");
    row.box.userClicked();
    EXPECT_EQ(form.record.*row.field, "0");
  }
}

TEST_F(Form2Options, OnlyTheCountdownUsesTheCombos) {
  struct Row {
    forms::OptionButton& option;
    const char* timeDisplay;
    bool usable;
  };
  for (const Row& row : {Row{form.noneOption, "0", false}, Row{form.timeOption, "1", false},
                         Row{form.yearOption, "2", true}}) {
    SCOPED_TRACE(row.timeDisplay);
    row.option.userClicked();
    EXPECT_EQ(form.record.timeDisplay, row.timeDisplay);
    for (forms::ComboBox* combo : {&form.monthCombo, &form.dayCombo, &form.yearCombo}) {
      EXPECT_EQ(combo->enabled(), row.usable);
      EXPECT_EQ(combo->backColor(), row.usable ? base::kWindowBackground : base::kThreeDLight);
    }
  }
}

TEST_F(Form2Options, TheCombosTakeAnyDay) {
  form.monthCombo.userSelected(1);
  form.dayCombo.userSelected(30);
  form.yearCombo.userSelected(40);
  EXPECT_EQ(form.record.countdownMonth, "02");
  EXPECT_EQ(form.record.countdownDay, "31");
  EXPECT_EQ(form.record.countdownYear, "2040");
}

TEST_F(Form2Options, CancelAndExitCloseTheDialogWithoutWriting) {
  form.Cancel.userClicked();
  EXPECT_EQ(machine.windows.unloaded, std::vector<std::string>{"Form2"});
  support::DialogMachine other;
  other.open().Exit.userClicked();
  EXPECT_EQ(other.windows.unloaded, std::vector<std::string>{"Form2"});
  EXPECT_TRUE(machine.files.writes.empty());
  EXPECT_TRUE(other.files.writes.empty());
}

// What choosing would enable is what the designed choices have enabled.
TEST_F(Form2Options, TheDesignedDialogIsEnabledAsItsChoicesWouldEnableIt) {
  support::DialogMachine fresh;
  Form2 designed(DialogServices{fresh.files, fresh.ansi, fresh.pictures, fresh.dialogs, fresh.windows}, "C:");
  form.backgroundDesktop.userClicked();
  form.backgroundColorGradient.userClicked();
  form.nChange.userClicked();
  form.aChange.userClicked();
  form.pRandom.userClicked();
  form.pCenter.userClicked();
  form.scrollOption.userClicked();
  form.middleOption.userClicked();
  form.timeOption.userClicked();
  form.noneOption.userClicked();
  for (const forms::Control* control : designed.controls()) {
    const forms::Control& same = *support::ControlNamed(form, control->name());
    EXPECT_EQ(control->enabled(), same.enabled()) << control->name();
    if (control->kind() != forms::ControlKind::PictureBox) {
      EXPECT_EQ(control->backColor(), same.backColor()) << control->name();
      EXPECT_EQ(control->foreColor(), same.foreColor()) << control->name();
    }
  }
}

}  // namespace
}  // namespace dialog
