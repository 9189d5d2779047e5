// How each key of the settings file reaches its control.
#include <gtest/gtest.h>

#include "dialog/option_table.h"
#include "support/dialog_machine.h"
#include "support/shown_settings.h"

namespace dialog {
namespace {

using support::FakeDialogs;
using support::ShownFor;

struct Form2LoadTable : testing::Test {
  support::DialogMachine machine;
};

struct Case {
  std::string key;
  std::string text;
  std::string shown;
};

void ExpectShown(const Case& each) {
  SCOPED_TRACE(each.key + "=" + each.text);
  support::DialogMachine other;
  const settings::Key& key = support::KeyNamed(each.key);
  other.set(key.section, each.key, each.text);
  Form2& form = other.open();
  EXPECT_TRUE(other.dialogs.messages.empty());
  EXPECT_TRUE(form.loadedWell());
  EXPECT_EQ(ShownFor(form, each.key), each.shown);
  EXPECT_EQ(form.record.*key.field, each.text);
}

TEST_F(Form2LoadTable, EveryKeyFillsItsControlAndItsField) {
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
  for (const Case& each : cases) ExpectShown(each);
}

TEST_F(Form2LoadTable, ANumberOutOfRangeIsClampedInTheControlAlone) {
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
  for (const Case& each : cases) ExpectShown(each);
}

TEST_F(Form2LoadTable, AChoiceThatDoesNotExistChoosesNothing) {
  for (const Case& each :
       {Case{"backEffect", "5", "backgroundColorGradient"},
        Case{"backgroundDisplay", "3", "FullScreenOption"}, Case{"scroll", "2", "middleOption"}})
    ExpectShown(each);
}

// Keys whose control takes any text.
bool TakesAnyText(const std::string& key) {
  return key == "picRandom" || key == "picChange" || key.starts_with("countdown") || key == "newFontName";
}

bool IsFlag(const std::string& key) {
  return key.starts_with("newFont") && key != "newFontSize" && key != "newFontForeColor";
}

TEST_F(Form2LoadTable, TheFirstTextThatDoesNotConvertEndsLoading) {
  const std::unique_ptr<Form2> design = machine.untouched();
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
      ASSERT_EQ(other.dialogs.messages, std::vector{support::kSettingsNotLoaded});
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
          EXPECT_EQ(ShownFor(form, each.name), ShownFor(whole, each.name)) << each.name;
          EXPECT_EQ(form.record.*each.field, whole.record.*each.field) << each.name;
        } else if (i > failing) {
          EXPECT_EQ(ShownFor(form, each.name), ShownFor(*design, each.name)) << each.name;
          EXPECT_EQ(form.record.*each.field, "") << each.name;
        }
      }
    }
  }
}

TEST_F(Form2LoadTable, TheRowsAreLoadedInTheirOrder) {
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

TEST_F(Form2LoadTable, WithoutATotalNothingIsLoaded) {
  machine.dropSection("total");
  machine.set("images", "0", "C:\\a.gif");
  const std::unique_ptr<Form2> design = machine.untouched();
  Form2& form = machine.open();
  EXPECT_EQ(machine.dialogs.messages, std::vector{support::kSettingsNotLoaded});
  EXPECT_EQ(form.List1.listCount(), 0);
  for (const OptionRow& row : OptionTable()) {
    const std::string key = settings::KeyOf(row.field).name;
    EXPECT_EQ(ShownFor(form, key), ShownFor(*design, key)) << key;
  }
}

TEST_F(Form2LoadTable, ATotalThatIsNoCountEndsLoading) {
  for (const char* total : {"", "many", "2000000000", "99999999999"}) {
    SCOPED_TRACE(total);
    support::DialogMachine other;
    other.set("total", "total", total);
    Form2& form = other.open();
    EXPECT_EQ(other.dialogs.messages, std::vector{support::kSettingsNotLoaded});
    EXPECT_EQ(form.List1.listCount(), 0);
    EXPECT_EQ(form.record.total, total);
    EXPECT_EQ(form.record.randomPick, "");
  }
}

TEST_F(Form2LoadTable, BothMessagesWordForWord) {
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

}  // namespace
}  // namespace dialog
