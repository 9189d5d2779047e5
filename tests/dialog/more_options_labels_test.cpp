// What the form of more options says of its controls.
#include <gtest/gtest.h>

#include <string>

#include "dialog/more_options.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

struct MoreOptionsLabels : testing::Test {
  support::SettingsDialogMachine machine;
  MoreOptions form{machine.openDialog().form.services(), {}};
};

// The letter that leads to a control: of its own caption, or of the label that stands before it.
bool HasMnemonic(const forms::Control& control, const forms::Control* before) {
  if (const auto* captioned = dynamic_cast<const forms::CaptionedControl*>(&control)) {
    return captioned->caption().find('&') != std::string::npos;
  }
  const auto* label = dynamic_cast<const forms::Label*>(before);
  return label && label->hasMnemonic && label->caption().find('&') != std::string::npos;
}

bool TakesKeyboard(const forms::Control& control) {
  switch (control.kind()) {
    case forms::ControlKind::Frame:
    case forms::ControlKind::Label:
    case forms::ControlKind::LiveView:
    case forms::ControlKind::StatusBar:
    case forms::ControlKind::TabControl:
    case forms::ControlKind::TabPage:
      return false;
    default:
      return true;
  }
}

TEST_F(MoreOptionsLabels, ALetterLeadsToEveryControlThatTakesTheKeyboard) {
  const forms::Control* before = nullptr;
  int controls = 0;
  for (const forms::Control* control : form.controls()) {
    if (TakesKeyboard(*control)) {
      EXPECT_TRUE(HasMnemonic(*control, before)) << control->name();
      ++controls;
    }
    before = control;
  }
  EXPECT_GE(controls, 28);
}

TEST_F(MoreOptionsLabels, AHintGoesWithTheTabOfWhichItSpoke) {
  form.tabs.userSelectedTab(MoreOptions::kLookTab);
  form.liveLook.onMouseMove({15, 15, false});
  EXPECT_NE(form.hints.panelText(1), "");
  form.tabs.userSelectedTab(MoreOptions::kLookTab + 1);
  EXPECT_EQ(form.hints.panelText(1), "");
}

}  // namespace
}  // namespace dialog
