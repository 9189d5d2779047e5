#include <gtest/gtest.h>

#include "base/errors.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/form.h"
#include "forms/lists.h"
#include "forms/picture_boxes.h"
#include "forms/ranges.h"
#include "forms/texts.h"
#include "support/fake_window_system.h"

namespace forms {
namespace {

struct Options : testing::Test {
  Form form{"Form"};
  Frame frame{form, "frame"};
  OptionButton a{form, "a"};
  OptionButton b{form, "b"};
  OptionButton elsewhere{form, "elsewhere"};
  std::string clicks;

  Options() {
    a.setContainer(&frame);
    b.setContainer(&frame);
    a.onClick = [this] { clicks += "a"; };
    b.onClick = [this] { clicks += "b"; };
    elsewhere.onClick = [this] { clicks += "e"; };
  }
};

TEST_F(Options, ChoosingFromCodeRaisesTheClickOfTheChosenAlone) {
  a.setValue(true);
  b.setValue(true);
  EXPECT_EQ(clicks, "ab");
  EXPECT_FALSE(a.value());
  EXPECT_TRUE(b.value());
}

TEST_F(Options, ChoosingWhatIsChosenRaisesNothing) {
  a.setValue(true);
  a.setValue(true);
  EXPECT_EQ(clicks, "a");
}

TEST_F(Options, TheUsersClickIsOneAlsoOnWhatIsChosen) {
  a.setValue(true);
  a.userClicked();
  EXPECT_EQ(clicks, "aa");
  EXPECT_TRUE(a.value());
}

TEST_F(Options, TakingAChoiceAwayRaisesNothing) {
  a.setValue(true);
  a.setValue(false);
  EXPECT_FALSE(a.value());
  EXPECT_EQ(clicks, "a");
}

TEST_F(Options, AnotherContainerIsAnotherGroup) {
  a.setValue(true);
  elsewhere.setValue(true);
  EXPECT_TRUE(a.value());
  EXPECT_TRUE(elsewhere.value());
}

TEST_F(Options, TheDesignValueRaisesNothing) {
  a.setDesignValue(true);
  EXPECT_TRUE(a.value());
  EXPECT_EQ(clicks, "");
}

TEST_F(Options, TheClickedHandlerSeesTheOthersNoLongerChosen) {
  a.setValue(true);
  bool othersChosen = true;
  b.onClick = [&] { othersChosen = a.value(); };
  b.userClicked();
  EXPECT_FALSE(othersChosen);
}

TEST(CheckBox, AnyChangeOfValueRaisesTheClick) {
  Form form("Form");
  CheckBox box(form, "box");
  int clicks = 0;
  box.onClick = [&] { ++clicks; };
  box.setValue(1);
  box.setValue(1);
  EXPECT_EQ(clicks, 1);
  box.setValue(0);
  EXPECT_EQ(clicks, 2);
  box.userClicked();
  EXPECT_EQ(clicks, 3);
  EXPECT_EQ(box.value(), 1);
}

TEST(CheckBox, ClampsToCheckedAndUnchecked) {
  Form form("Form");
  CheckBox box(form, "box");
  box.setValue(7);
  EXPECT_EQ(box.value(), 1);
  box.setValue(-1);
  EXPECT_EQ(box.value(), 0);
}

TEST(Slider, ClampsAndRaisesTheChangeOnlyForAnotherValue) {
  Form form("Form");
  Slider slider(form, "slider");
  slider.setRange(10, 100, 1, 5);
  EXPECT_EQ(slider.value(), 10) << "clipped silently into its new range";
  int changes = 0;
  slider.onChange = [&] { ++changes; };
  slider.setValue(1000);
  EXPECT_EQ(slider.value(), 100);
  slider.setValue(101);
  slider.setValue(100);
  EXPECT_EQ(changes, 1);
  slider.userSetValue(50);
  EXPECT_EQ(changes, 2);
  slider.setRange(60, 90, 1, 5);
  EXPECT_EQ(slider.value(), 60);
  EXPECT_EQ(changes, 2);
}

TEST(ScrollBar, TakesAMinimumAboveItsMaximum) {
  Form form("Form");
  ScrollBar bar(form, "bar");
  bar.setRange(3600, 0, 1, 10);
  bar.setValue(5000);
  EXPECT_EQ(bar.value(), 3600);
  bar.setValue(-5);
  EXPECT_EQ(bar.value(), 0);
}

TEST(TextBox, ChangedTextRaisesTheChangeFromCodeToo) {
  Form form("Form");
  TextBox box(form, "box");
  std::string seen;
  box.onChange = [&] { seen += box.text() + ";"; };
  box.setText("a");
  box.setText("a");
  box.userTyped("ab");
  EXPECT_EQ(seen, "a;ab;");
}

TEST(ComboBox, ShowsAnyTextThatWasSet) {
  Form form("Form");
  ComboBox combo(form, "combo");
  combo.setItems({"01", "02"});
  int clicks = 0;
  combo.onClick = [&] { ++clicks; };
  combo.setText("Month");
  EXPECT_EQ(combo.text(), "Month");
  EXPECT_EQ(combo.listIndex(), -1);
  combo.setText("02");
  EXPECT_EQ(combo.listIndex(), 1);
  EXPECT_EQ(clicks, 0);
  combo.setListIndex(1);
  EXPECT_EQ(clicks, 0);
  combo.setListIndex(0);
  EXPECT_EQ(clicks, 1);
  combo.userSelected(0);
  EXPECT_EQ(clicks, 2);
  EXPECT_THROW(combo.setListIndex(2), base::InvalidPropertyValue);
}

TEST(CommandButton, DoesNothingWhileWhatItStandsOnIsDisabled) {
  Form form("Form");
  Frame frame(form, "frame");
  CommandButton button(form, "button");
  button.setContainer(&frame);
  int clicks = 0;
  button.onClick = [&] { ++clicks; };
  frame.setEnabled(false);
  button.userClicked();
  EXPECT_EQ(clicks, 0);
  frame.setEnabled(true);
  button.userClicked();
  EXPECT_EQ(clicks, 1);
}

TEST(TabControl, ShowsOnePageAtATime) {
  Form form("Form");
  TabControl tabs(form, "tabs", {" One ", " Two "});
  int clicks = 0;
  tabs.onClick = [&] { ++clicks; };
  EXPECT_EQ(tabs.tabCount(), 2);
  EXPECT_EQ(tabs.page(1).caption(), " Two ");
  EXPECT_TRUE(tabs.page(0).isShown());
  EXPECT_FALSE(tabs.page(1).isShown());
  tabs.setTab(1);
  tabs.setTab(1);
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(tabs.page(0).isShown());
  EXPECT_TRUE(tabs.page(1).isShown());
  EXPECT_THROW(tabs.setTab(2), base::InvalidPropertyValue);
}

TEST(StatusBar, PanelsCountFromOne) {
  Form form("Form");
  StatusBar bar(form, "bar", {{"a"}, {"b"}});
  bar.setPanelText(1, "hint");
  EXPECT_EQ(bar.panelText(1), "hint");
  EXPECT_EQ(bar.panelText(2), "b");
}

TEST(Image, FitsAPictureInItsProportionsWithoutEnlargingIt) {
  EXPECT_EQ(FitInside({400, 200}, {100, 100}), (base::PixelSize{100, 50}));
  EXPECT_EQ(FitInside({200, 400}, {100, 100}), (base::PixelSize{50, 100}));
  EXPECT_EQ(FitInside({40, 20}, {100, 100}), (base::PixelSize{40, 20}));
  EXPECT_EQ(FitInside({10000, 1}, {100, 100}), (base::PixelSize{100, 1}));
  EXPECT_EQ(FitInside({0, 10}, {100, 100}), (base::PixelSize{0, 0}));
}

TEST(Controls, TellTheirHostBeforeTheyRaiseTheEvent) {
  Form form("Form");
  support::FakeWindowSystem host;
  form.setHost(&host);
  Slider slider(form, "slider");
  slider.onChange = [&] { EXPECT_EQ(host.changes.back().second, Change::Value); };
  slider.setValue(3);
  form.setHost(nullptr);
  EXPECT_EQ(host.changes.size(), 1U);
}

}  // namespace
}  // namespace forms
