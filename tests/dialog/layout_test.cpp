#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>

#include "dialog/control_table.h"
#include "support/dialog_machine.h"

namespace dialog {
namespace {

struct DialogLayout : testing::Test {
  support::DialogMachine machine;
  Form2& form = machine.open();
};

TEST_F(DialogLayout, TheTablesNameEveryControlOnce) {
  for (const forms::Control* control : form.controls()) {
    if (control->kind() == forms::ControlKind::TabPage) continue;
    int rows = 0;
    for (const ControlRow& row : ControlTable()) rows += &row.control(form) == control ? 1 : 0;
    EXPECT_EQ(rows, 1) << control->name();
  }
}

TEST_F(DialogLayout, EveryControlLiesInsideWhatItStandsOn) {
  for (const forms::Control* control : form.controls()) {
    if (control->name() == "photo" || control->name() == "photo_caption") continue;
    const float width = control->container() ? control->container()->width() : form.clientWidth();
    const float height = control->container() ? control->container()->height() : form.clientHeight();
    EXPECT_GE(control->left(), 0) << control->name();
    EXPECT_GE(control->top(), 0) << control->name();
    EXPECT_LE(control->left() + control->width(), width) << control->name();
    EXPECT_LE(control->top() + control->height(), height) << control->name();
  }
}

TEST_F(DialogLayout, NothingOverlaps) {
  const auto& controls = form.controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    for (std::size_t j = i + 1; j < controls.size(); ++j) {
      const forms::Control& a = *controls[i];
      const forms::Control& b = *controls[j];
      if (a.container() != b.container() || a.kind() == forms::ControlKind::TabPage) continue;
      if (!a.visible() || !b.visible()) continue;
      EXPECT_TRUE(a.pixelRect().intersected(b.pixelRect()).isEmpty()) << a.name() << " and " << b.name();
    }
  }
}

TEST_F(DialogLayout, NoNumberOfDotsPerInchMakesControlsOverlap) {
  for (const int perPixel : {15, 12, 10, 8}) {
    struct Host : support::FakeWindowSystem {
      int twips = 15;
      int twipsPerPixel() const override { return twips; }
    } host;
    host.twips = perPixel;
    form.setHost(&host);
    const auto& controls = form.controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
      for (std::size_t j = i + 1; j < controls.size(); ++j) {
        const forms::Control& a = *controls[i];
        const forms::Control& b = *controls[j];
        if (a.container() != b.container() || a.kind() == forms::ControlKind::TabPage) continue;
        if (!a.visible() || !b.visible()) continue;
        EXPECT_TRUE(a.pixelRect().intersected(b.pixelRect()).isEmpty()) << a.name() << " and " << b.name();
      }
    }
    form.setHost(&machine.windows);
  }
}

// Six pixels to the letter is what the widest system dialog font takes in the mean.
TEST_F(DialogLayout, EveryCaptionHasRoom) {
  for (const forms::Control* control : form.controls()) {
    std::string text;
    int extra = 0;
    if (const auto* label = dynamic_cast<const forms::Label*>(control)) text = label->caption();
    if (const auto* captioned = dynamic_cast<const forms::CaptionedControl*>(control)) {
      text = captioned->caption();
      extra = control->kind() == forms::ControlKind::CommandButton ? 12 : 18;
    }
    std::erase(text, '&');
    EXPECT_LE(static_cast<int>(text.size()) * 6 + extra, control->pixelRect().width) << control->name();
  }
}

TEST_F(DialogLayout, TheSlidersHaveTheirLimitsStepsAndTicks) {
  struct Row {
    forms::Slider& slider;
    int min, max, largeChange, ticks;
  };
  for (const Row& row : {Row{form.floatSlider, 0, 5, 5, 1},
                         {form.redSlider, 0, 255, 1, 20},
                         {form.greenSlider, 0, 255, 1, 20},
                         {form.blueSlider, 0, 255, 1, 20},
                         {form.MouseSensitiveSlider, 1, 30, 5, 1},
                         {form.PercentSlider, 10, 100, 5, 5},
                         {form.scrollSlider, 100, 300, 5, 20}}) {
    SCOPED_TRACE(row.slider.name());
    EXPECT_EQ(row.slider.min(), row.min);
    EXPECT_EQ(row.slider.max(), row.max);
    EXPECT_EQ(row.slider.smallChange(), 1);
    EXPECT_EQ(row.slider.largeChange(), row.largeChange);
    EXPECT_EQ(row.slider.tickFrequency(), row.ticks);
  }
}

TEST_F(DialogLayout, EveryControlThatTakesTheKeyboardHasAName) {
  using enum forms::ControlKind;
  for (const forms::Control* control : form.controls()) {
    const forms::ControlKind kind = control->kind();
    if (!control->visible()) continue;
    if (kind == Slider || kind == TextBox || kind == ComboBox || kind == ListBox || kind == ScrollBar) {
      EXPECT_NE(control->accessibleName(), "") << control->name();
    }
    if (const auto* button = dynamic_cast<const forms::CaptionedControl*>(control)) {
      EXPECT_NE(button->caption() + button->accessibleName(), "") << control->name();
    }
  }
}

// What stands on a page, however deep.
int TabOf(const Form2& form, const forms::Control& control) {
  for (const forms::Control* on = &control; on; on = on->container()) {
    for (int tab = 0; tab < form.SSTab1.tabCount(); ++tab) {
      if (on == &form.SSTab1.page(tab)) return tab;
    }
  }
  return -1;
}

TEST_F(DialogLayout, NoPageHasAMnemonicTwice) {
  std::map<int, std::string> taken;  // by tab
  for (const forms::Control* control : form.controls()) {
    const auto* captioned = dynamic_cast<const forms::CaptionedControl*>(control);
    const std::size_t mark = captioned ? captioned->caption().find('&') : std::string::npos;
    if (mark == std::string::npos || control == &form.pCenter)
      continue;  // "&Center" beside "&Cancel" is given
    const int letter = std::toupper(captioned->caption().at(mark + 1));
    const int tab = TabOf(form, *control);
    if (tab < 0) {
      for (int each = 0; each < form.SSTab1.tabCount(); ++each) taken[each] += static_cast<char>(letter);
      continue;
    }
    taken[tab] += static_cast<char>(letter);
  }
  for (auto& [tab, letters] : taken) {
    std::ranges::sort(letters);
    EXPECT_TRUE(std::ranges::adjacent_find(letters) == letters.end()) << "tab " << tab << ": " << letters;
  }
  EXPECT_EQ(taken[0], "ACDELMORT");
  EXPECT_EQ(taken[2], "CLMOST");
}

TEST_F(DialogLayout, ASliderThatIsDisabledHasGreyLabels) {
  form.pCenter.userClicked();
  form.middleOption.userClicked();
  for (const forms::Label* label :
       {&form.Label11, &form.Label7, &form.scrollSlowLabel, &form.scrollFastLabel}) {
    EXPECT_FALSE(label->enabled()) << label->name();
  }
  form.pRandom.userClicked();
  form.scrollOption.userClicked();
  for (const forms::Label* label :
       {&form.Label11, &form.Label7, &form.scrollSlowLabel, &form.scrollFastLabel}) {
    EXPECT_TRUE(label->enabled()) << label->name();
  }
}

TEST_F(DialogLayout, TheSentenceAboutTheImageSizeHasNoGap) {
  const auto end = [](const forms::Label& label) { return label.left() + label.width(); };
  EXPECT_EQ(form.Label13.align, forms::TextAlign::Right);
  EXPECT_LE(form.percentLabel.left() - end(form.Label13), 2 * 15);
  EXPECT_LE(form.Label12.left() - end(form.percentLabel), 2 * 15);
  EXPECT_LE(form.percentLabel.width(), 34 * 15) << "a hundred per cent, and no more";
}

}  // namespace
}  // namespace dialog
