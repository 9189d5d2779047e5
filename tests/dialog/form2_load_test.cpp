#include <gtest/gtest.h>

#include <functional>

#include "base/color.h"
#include "dialog/messages.h"
#include "dialog/option_table.h"
#include "support/dialog_machine.h"

namespace dialog {
namespace {

using settings::SettingsRecord;
using support::FakeDialogs;

const FakeDialogs::Message kLoadFailed{kCouldNotLoad, 48};

struct Form2Load : testing::Test {
  support::DialogMachine machine;

  // What a control shows, as text.
  static std::string shownFor(Form2& form, const std::string& key) {
    const auto option = [](std::initializer_list<forms::OptionButton*> options) {
      std::string chosen;
      for (forms::OptionButton* each : options) chosen += each->value() ? each->name() : "";
      return chosen;
    };
    const auto color = [](base::PackedColor value) { return std::to_string(value); };
    const auto flag = [](bool value) { return std::string(value ? "True" : "False"); };
    const base::Font& font = form.dlgDialog.font;
    const std::map<std::string, std::function<std::string()>> shown = {
        {"randomPick", [&] { return std::to_string(form.Random_select.value()); }},
        {"newBackColor",
         [&] { return color(form.dlgDialog2.color) + " " + color(form.Picture1.backColor()); }},
        {"backEffect",
         [&] {
           return option({&form.backgroundColor, &form.backgroundDesktop, &form.backgroundCustomImage,
                          &form.backgroundColorGradient});
         }},
        {"picRandom",
         [&] {
           return option({&form.pCenter, &form.pRandom});
         }},
        {"picSpeed", [&] { return std::to_string(form.floatSlider.value()); }},
        {"picChange",
         [&] {
           return option({&form.aChange, &form.nChange});
         }},
        {"timeInterval",
         [&] { return form.Text2.text() + " " + std::to_string(form.changeVScroll1.value()); }},
        {"backgroundDisplay",
         [&] {
           return option({&form.CenterOption, &form.FullScreenOption, &form.TileOption});
         }},
        {"redBackground",
         [&] { return std::to_string(form.redSlider.value()) + " " + color(form.redPicture.backColor()); }},
        {"greenBackground",
         [&] {
           return std::to_string(form.greenSlider.value()) + " " + color(form.greenPicture.backColor());
         }},
        {"blueBackground",
         [&] { return std::to_string(form.blueSlider.value()) + " " + color(form.bluePicture.backColor()); }},
        {"scroll",
         [&] {
           return option({&form.scrollOption, &form.middleOption});
         }},
        {"mouseSensitivity", [&] { return std::to_string(form.MouseSensitiveSlider.value()); }},
        {"picturePercent",
         [&] { return std::to_string(form.PercentSlider.value()) + " " + form.percentLabel.caption(); }},
        {"scrollSpeed", [&] { return std::to_string(form.scrollSlider.value()); }},
        {"bStandard", [&] { return std::to_string(form.Standard.value()); }},
        {"bLeftWipe", [&] { return std::to_string(form.LWipe.value()); }},
        {"bRightWipe", [&] { return std::to_string(form.RWipe.value()); }},
        {"bRightandLeftWipe", [&] { return std::to_string(form.RLWipe.value()); }},
        {"bUpAndDown", [&] { return std::to_string(form.UDWipe.value()); }},
        {"bCenter", [&] { return std::to_string(form.CenterWipe.value()); }},
        {"bHorizontalBlinds", [&] { return std::to_string(form.HorizontalBlinds.value()); }},
        {"bVerticalBlinds", [&] { return std::to_string(form.VerticalBlinds.value()); }},
        {"bFade", [&] { return std::to_string(form.Fade.value()); }},
        {"timeDisplay",
         [&] {
           return option({&form.noneOption, &form.timeOption, &form.yearOption});
         }},
        {"countdownMonth", [&] { return form.monthCombo.text(); }},
        {"countdownDay", [&] { return form.dayCombo.text(); }},
        {"countdownYear", [&] { return form.yearCombo.text(); }},
        {"newFontName", [&] { return font.name; }},
        {"newFontSize", [&] { return std::to_string(font.sizePoints).substr(0, 4); }},
        {"newFontBold", [&] { return flag(font.bold); }},
        {"newFontItalic", [&] { return flag(font.italic); }},
        {"newFontUnderline", [&] { return flag(font.underline); }},
        {"newFontFontStrikethru", [&] { return flag(font.strikethrough); }},
        {"newFontForeColor",
         [&] { return color(form.dlgDialog.color) + " " + color(form.Picture2.backColor()); }},
    };
    return shown.at(key)();
  }

  // The dialog as it is before anything is read.
  std::unique_ptr<Form2> untouched() {
    return std::make_unique<Form2>(
        DialogServices{machine.files, machine.ansi, machine.pictures, machine.dialogs, machine.windows},
        "C:");
  }
};

struct Case {
  std::string key;
  std::string text;
  std::string shown;
};

TEST_F(Form2Load, EveryKeyFillsItsControlAndItsField) {
  const std::vector<Case> cases = {
      {"randomPick", "1", "1"},
      {"randomPick", "0", "0"},
      {"newBackColor", "16711680", "16711680 16711680"},
      {"backEffect", "0", "backgroundColor"},
      {"backEffect", "1", "backgroundDesktop"},
      {"backEffect", "2", "backgroundCustomImage"},
      {"backEffect", "3", "backgroundColorGradient"},
      {"picRandom", "cent", "pCenter"},
      {"picRandom", "rand", "pRandom"},
      {"picRandom", "Cent", "pRandom"},
      {"picRandom", "", "pRandom"},
      {"picSpeed", "0", "0"},
      {"picSpeed", "5", "5"},
      {"picChange", "ch", "aChange"},
      {"picChange", "not_ch", "nChange"},
      {"picChange", "anything", "nChange"},
      {"picChange", "", "nChange"},
      {"timeInterval", "45", "45 45"},
      {"timeInterval", "3600", "3600 3600"},
      {"backgroundDisplay", "0", "CenterOption"},
      {"backgroundDisplay", "1", "FullScreenOption"},
      {"backgroundDisplay", "2", "TileOption"},
      {"redBackground", "200", "200 200"},
      {"greenBackground", "200", "200 51200"},
      {"blueBackground", "200", "200 13107200"},
      {"scroll", "0", "scrollOption"},
      {"scroll", "1", "middleOption"},
      {"mouseSensitivity", "30", "30"},
      {"picturePercent", "10", "10 10%"},
      {"scrollSpeed", "300", "300"},
      {"bStandard", "1", "1"},
      {"bLeftWipe", "0", "0"},
      {"bRightWipe", "1", "1"},
      {"bRightandLeftWipe", "0", "0"},
      {"bUpAndDown", "1", "1"},
      {"bCenter", "0", "0"},
      {"bHorizontalBlinds", "1", "1"},
      {"bVerticalBlinds", "0", "0"},
      {"bFade", "1", "1"},
      {"timeDisplay", "0", "noneOption"},
      {"timeDisplay", "1", "timeOption"},
      {"timeDisplay", "2", "yearOption"},
      {"timeDisplay", "7", "yearOption"},
      {"timeDisplay", "-1", "yearOption"},
      {"countdownMonth", "12", "12"},
      {"countdownMonth", "soon", "soon"},
      {"countdownMonth", "", ""},
      {"countdownDay", "31", "31"},
      {"countdownYear", "2040", "2040"},
      {"countdownYear", "1999", "1999"},
      {"newFontName", "Arial", "Arial"},
      {"newFontName", "", ""},
      {"newFontSize", "48", "48.0"},
      {"newFontBold", "False", "False"},
      {"newFontItalic", "True", "True"},
      {"newFontUnderline", "False", "False"},
      {"newFontFontStrikethru", "True", "True"},
      {"newFontForeColor", "16777215", "16777215 16777215"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.key + "=" + each.text);
    support::DialogMachine other;
    const settings::Key& key = support::KeyNamed(each.key);
    other.set(key.section, each.key, each.text);
    Form2& form = other.open();
    EXPECT_TRUE(other.dialogs.messages.empty());
    EXPECT_TRUE(form.loadedWell());
    EXPECT_EQ(shownFor(form, each.key), each.shown);
    EXPECT_EQ(form.record.*key.field, each.text);
  }
}

TEST_F(Form2Load, ANumberOutOfRangeIsClampedInTheControlAlone) {
  const std::vector<Case> cases = {
      {"randomPick", "5", "1"},
      {"picSpeed", "9", "5"},
      {"picSpeed", "-1", "0"},
      {"timeInterval", "5000", "3600 3600"},
      {"timeInterval", "-1", "0 0"},
      {"redBackground", "300", "255 255"},
      {"redBackground", "-7", "0 0"},
      {"greenBackground", "300", "255 65280"},
      {"blueBackground", "300", "255 16711680"},
      {"mouseSensitivity", "0", "1"},
      {"mouseSensitivity", "99", "30"},
      {"picturePercent", "150", "100 150%"},
      {"scrollSpeed", "50", "100"},
      {"bFade", "3", "1"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.key + "=" + each.text);
    support::DialogMachine other;
    const settings::Key& key = support::KeyNamed(each.key);
    other.set(key.section, each.key, each.text);
    Form2& form = other.open();
    EXPECT_TRUE(other.dialogs.messages.empty());
    EXPECT_EQ(shownFor(form, each.key), each.shown);
    EXPECT_EQ(form.record.*key.field, each.text);
  }
}

TEST_F(Form2Load, AChoiceThatDoesNotExistChoosesNothing) {
  for (const Case& each :
       {Case{"backEffect", "5", "backgroundColorGradient"},
        Case{"backgroundDisplay", "3", "FullScreenOption"}, Case{"scroll", "2", "middleOption"}}) {
    SCOPED_TRACE(each.key);
    support::DialogMachine other;
    const settings::Key& key = support::KeyNamed(each.key);
    other.set(key.section, each.key, each.text);
    Form2& form = other.open();
    EXPECT_TRUE(other.dialogs.messages.empty());
    EXPECT_EQ(shownFor(form, each.key), each.shown);
    EXPECT_EQ(form.record.*key.field, each.text);
  }
}

// Keys whose control takes any text.
bool TakesAnyText(const std::string& key) {
  return key == "picRandom" || key == "picChange" || key.starts_with("countdown") || key == "newFontName";
}

bool IsFlag(const std::string& key) {
  return key.starts_with("newFont") && key != "newFontSize" && key != "newFontForeColor";
}

TEST_F(Form2Load, TheFirstTextThatDoesNotConvertEndsLoading) {
  const std::unique_ptr<Form2> design = untouched();
  for (const std::string bad :
       {"<missing>", "", "abc", "1.5.5", "99999999999999999999999999999999999999999"}) {
    for (std::size_t failing = 0; failing < OptionTable().size(); ++failing) {
      const settings::Key& row = settings::KeyOf(OptionTable()[failing].field);
      if (TakesAnyText(row.name)) continue;
      if (bad.size() > 20 && IsFlag(row.name)) continue;  // any number that is not 0 means True
      SCOPED_TRACE(std::string(row.name) + "=" + bad);
      support::DialogMachine other;
      other.set("total", "total", "1");
      other.set("images", "0", "C:\\a.gif");
      other.set("background", "backgroundImage", "C:\\back.bmp");
      if (bad == "<missing>") {
        other.drop(row.section, row.name);
      } else {
        other.set(row.section, row.name, bad);
      }
      Form2& form = other.open();
      ASSERT_EQ(other.dialogs.messages, std::vector{kLoadFailed});
      EXPECT_FALSE(form.loadedWell());
      EXPECT_EQ(form.Text3.text(), "Total: 1");
      EXPECT_EQ(form.List1.listIndex(), -1);
      EXPECT_EQ(form.backgroundImageFile.text(), "");
      EXPECT_TRUE(other.pictures.opened.empty());
      EXPECT_EQ(form.record.*row.field, bad == "<missing>" ? "" : bad) << "it was read";
      support::DialogMachine good;
      Form2& whole = good.open();
      for (std::size_t i = 0; i < OptionTable().size(); ++i) {
        const settings::Key& each = settings::KeyOf(OptionTable()[i].field);
        if (i < failing) {
          EXPECT_EQ(shownFor(form, each.name), shownFor(whole, each.name)) << each.name;
          EXPECT_EQ(form.record.*each.field, whole.record.*each.field) << each.name;
        } else if (i > failing) {
          EXPECT_EQ(shownFor(form, each.name), shownFor(*design, each.name)) << each.name;
          EXPECT_EQ(form.record.*each.field, "") << each.name;
        }
      }
    }
  }
}

TEST_F(Form2Load, TheRowsAreLoadedInTheirOrder) {
  const std::vector<std::string> expected = {"randomPick",        "newBackColor",
                                             "backEffect",        "picRandom",
                                             "picSpeed",          "picChange",
                                             "timeInterval",      "backgroundDisplay",
                                             "redBackground",     "greenBackground",
                                             "blueBackground",    "scroll",
                                             "mouseSensitivity",  "picturePercent",
                                             "scrollSpeed",       "bStandard",
                                             "bLeftWipe",         "bRightWipe",
                                             "bRightandLeftWipe", "bUpAndDown",
                                             "bCenter",           "bHorizontalBlinds",
                                             "bVerticalBlinds",   "bFade",
                                             "timeDisplay",       "countdownMonth",
                                             "countdownDay",      "countdownYear",
                                             "newFontName",       "newFontSize",
                                             "newFontBold",       "newFontItalic",
                                             "newFontUnderline",  "newFontFontStrikethru",
                                             "newFontForeColor"};
  std::vector<std::string> rows;
  for (const OptionRow& row : OptionTable()) rows.emplace_back(settings::KeyOf(row.field).name);
  EXPECT_EQ(rows, expected);
}

TEST_F(Form2Load, WithoutATotalNothingIsLoaded) {
  machine.dropSection("total");
  machine.set("images", "0", "C:\\a.gif");
  const std::unique_ptr<Form2> design = untouched();
  Form2& form = machine.open();
  EXPECT_EQ(machine.dialogs.messages, std::vector{kLoadFailed});
  EXPECT_EQ(form.List1.listCount(), 0);
  for (const OptionRow& row : OptionTable()) {
    const std::string key = settings::KeyOf(row.field).name;
    EXPECT_EQ(shownFor(form, key), shownFor(*design, key)) << key;
  }
}

TEST_F(Form2Load, ATotalThatIsNoCountEndsLoading) {
  for (const char* total : {"", "many", "2000000000", "99999999999"}) {
    SCOPED_TRACE(total);
    support::DialogMachine other;
    other.set("total", "total", total);
    Form2& form = other.open();
    EXPECT_EQ(other.dialogs.messages, std::vector{kLoadFailed});
    EXPECT_EQ(form.List1.listCount(), 0);
    EXPECT_EQ(form.record.total, total);
    EXPECT_EQ(form.record.randomPick, "");
  }
}

TEST_F(Form2Load, BothMessagesWordForWord) {
  machine.set("background", "backgroundImage", "C:\\missing.bmp");
  machine.open();
  support::DialogMachine other;
  other.drop("image", "randomPick");
  other.open();
  EXPECT_EQ(machine.dialogs.messages,
            (std::vector<FakeDialogs::Message>{
                {"Could not load Background Image correctly. Please reload a new image.", 48}}));
  EXPECT_EQ(
      other.dialogs.messages,
      (std::vector<FakeDialogs::Message>{
          {"Could not load screen saver properly. Please check all background and regular loaded images. "
           "If problem persists, please reinstall screen saver.",
           48}}));
}

TEST_F(Form2Load, BeforeAnythingIsReadTheCombosShowWhatTheyAreFor) {
  const std::unique_ptr<Form2> design = untouched();
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
  EXPECT_EQ(machine.dialogs.messages, std::vector{kLoadFailed});
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
  EXPECT_EQ(machine.dialogs.messages, std::vector{kLoadFailed});
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
