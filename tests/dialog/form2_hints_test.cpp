#include <gtest/gtest.h>

#include <set>

#include "dialog/control_table.h"
#include "support/dialog_machine.h"

namespace dialog {
namespace {

// Moves the pointer over the real dialog and reads what the status bar says.
struct Form2Hints : testing::Test {
  support::DialogMachine machine;
  Form2& form = machine.open();

  // Shows the tab on which a control stands.
  void reveal(const forms::Control& control) {
    for (int i = 0; i < form.SSTab1.tabCount(); ++i) {
      for (const forms::Control* on = &control; on; on = on->container()) {
        if (on == &form.SSTab1.page(i)) form.SSTab1.setTab(i);
      }
    }
  }

  static base::TwipsPoint cornerOf(const forms::Control& control) {
    base::TwipsPoint corner;
    for (const forms::Control* on = &control; on; on = on->container()) {
      corner.x += on->left();
      corner.y += on->top();
    }
    return corner;
  }

  std::string over(forms::Control& control, float dx = 45, float dy = 45) {
    reveal(control);
    const base::TwipsPoint corner = cornerOf(control);
    form.userMovedMouse(corner.x + dx, corner.y + dy);
    return form.SS_StatusBar.panelText(1);
  }
};

TEST_F(Form2Hints, EveryRowShowsItsHintOverItsControl) {
  int hints = 0;
  for (const ControlRow& row : ControlTable()) {
    if (!row.hint || row.hint == std::string_view(kClearsHint)) continue;
    ++hints;
    forms::Control& control = row.control(form);
    SCOPED_TRACE(control.name());
    // What the choices disable is tried enabled.
    for (forms::Control* on = &control; on; on = on->container()) on->setEnabled(true);
    form.SS_StatusBar.setPanelText(1, "before");
    EXPECT_EQ(over(control), row.hint);
  }
  EXPECT_EQ(hints, 47);
}

TEST_F(Form2Hints, EveryHintWordForWord) {
  struct Row {
    forms::Control& control;
    std::string_view hint;
  };
  // clang-format off
  const Row rows[] = {
      {form.Cancel, "Cancel Settings: Cancel and do not save screen saver settings"},
      {form.Ok, "Save Settings: Save all screen saver settings"},
      {form.middleOption, "Caption: Center the caption in the middle of the screen"},
      {form.scrollOption, "Caption: Scroll the caption across the screen"},
      {form.scrollSlider, "Scrolling Speed: Speed of caption scrolling across the screen"},
      {form.Picture2, "Font: Color of caption font"},
      {form.p_caption, "Caption: Caption to be displayed with image below"},
      {form.caption_clear, "Caption: Clear the caption to be displayed with image below"},
      {form.font, "Caption: Change the caption's size, color, and font"},
      {form.photo1, "Image: Thumbnail size of image that will be displayed in screen saver"},
      {form.EnlargeCommand, "Image: Actual size of Image that will be displayed in screen saver"},
      {form.ImagePosition, "Image Postion: Position of image within a group of images to be displayed"},
      {form.Text3, "Image Total: Total amount of images to be displayed in screen saver"},
      {form.add, "Add: Load an image to be displayed in screen saver"},
      {form.remove, "Remove: Remove a selected loaded image from the screen saver"},
      {form.RemoveAll, "Remove All: Remove all loaded images from the screen saver"},
      {form.FolderCommand, "Multiple Images: Add several images from a selected folder"},
      {form.up, "File Up: Move a selected image file up in the group"},
      {form.down, "File Down: Move a selected image file down in the group"},
      {form.List1, "Images: Loaded images to be displayed in screen saver"},
      {form.Label13, "Image Size: Display all loaded images less than a percentage of the screen"},
      {form.PercentSlider, "Image Size: Display all loaded images less than a percentage of the screen"},
      {form.pCenter, "Image Movement: Center all loaded images"},
      {form.pRandom, "Image Movement: Float all loaded images around the screen"},
      {form.floatSlider, "Image Movement: Float speed of loaded images"},
      {form.Frame4, "Image transitions: Image effects on loaded images"},
      {form.aChange, "Change Image: Display next image after a selected amount of time"},
      {form.nChange, "Change Image: Always display the first image. Never Display the next image"},
      {form.Random_select, "Change Image: Randomly display all loaded images"},
      {form.Text2, "Change Image: Display loaded image after (x) amount of seconds"},
      {form.backgroundDesktop, "Background Selection: Display your desktop as a background"},
      {form.backgroundColor, "Background Selection: Display a color as a background"},
      {form.backgroundCustomImage, "Background Selection: Display an image as a background"},
      {form.backgroundColorGradient, "Background Selection: Display a gradient color as a background"},
      {form.frameBackgroundColor, "Background Color: Display your favorite color as a background"},
      {form.frameCustomImage, "Custom Background Image: Display a loaded image as a background"},
      {form.frameColorGradient, "Gradient Background Color: Display a gradient color as a background"},
      {form.Frame5, "Mouse Sensitivity: Close screen saver based upon mouse sensitivity"},
      {form.Frame2, "Countdown: Countdown to a special date in your screen saver"},
      {form.MoreCommand, "More Options: Screens, order, look, words, keys and folders of the screen saver"},
  };
  // clang-format on
  EXPECT_EQ(std::size(rows), 40U);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.control.name());
    for (forms::Control* on = &row.control; on; on = on->container()) on->setEnabled(true);
    EXPECT_EQ(over(row.control), row.hint);
  }
}

TEST_F(Form2Hints, SomeHintsWordForWord) {
  EXPECT_EQ(over(form.Ok), "Save Settings: Save all screen saver settings");
  EXPECT_EQ(over(form.ImagePosition),
            "Image Postion: Position of image within a group of images to be displayed");
  EXPECT_EQ(over(form.Frame2), "Countdown: Countdown to a special date in your screen saver");
  EXPECT_EQ(over(form.Label13), over(form.PercentSlider));
  EXPECT_EQ(over(form.Label13), "Image Size: Display all loaded images less than a percentage of the screen");
}

TEST_F(Form2Hints, TheBareFormTheTabsAndFourFramesClear) {
  for (forms::Control* control : std::initializer_list<forms::Control*>{
           &form.SSTab1, &form.Frame1, &form.Frame3, &form.Frame6, &form.placement}) {
    form.SS_StatusBar.setPanelText(1, "before");
    EXPECT_EQ(over(*control), "") << control->name();
  }
  for (int i = 0; i < form.SSTab1.tabCount(); ++i) {
    form.SS_StatusBar.setPanelText(1, "before");
    EXPECT_EQ(over(form.SSTab1.page(i)), "") << i;
  }
  form.SS_StatusBar.setPanelText(1, "before");
  form.userMovedMouse(15, 15);
  EXPECT_EQ(form.SS_StatusBar.panelText(1), "");
}

TEST_F(Form2Hints, EveryOtherControlLeavesTheHintStanding) {
  std::set<std::string_view> known = {"photo", "photo_caption"};
  for (const ControlRow& row : ControlTable()) {
    if (row.hint) known.insert(row.control(form).name());
  }
  int others = 0;
  for (forms::Control* control : form.controls()) {
    if (known.contains(control->name()) || control->kind() == forms::ControlKind::TabPage) continue;
    for (forms::Control* on = control; on; on = on->container()) on->setEnabled(true);
    form.SS_StatusBar.setPanelText(1, "before");
    EXPECT_EQ(over(*control), "before") << control->name();
    ++others;
  }
  EXPECT_GT(others, 40);
}

TEST_F(Form2Hints, AHintStandsFromAFrameOntoItsCheckBoxes) {
  const std::string hint = over(form.Frame4);
  EXPECT_EQ(hint, "Image transitions: Image effects on loaded images");
  EXPECT_EQ(over(form.Fade), hint);
}

TEST_F(Form2Hints, ADisabledControlSpeaksForWhatItStandsOn) {
  form.nChange.userClicked();
  form.SS_StatusBar.setPanelText(1, "before");
  EXPECT_EQ(over(form.Text2), "") << "its frame clears";
  form.backgroundDesktop.userClicked();
  form.SS_StatusBar.setPanelText(1, "before");
  EXPECT_EQ(over(form.frameColorGradient), "") << "the tab control clears";
}

TEST_F(Form2Hints, AControlOfAnotherTabDoesNotSpeak) {
  reveal(form.Frame5);
  const base::TwipsPoint corner = cornerOf(form.List1);
  form.userMovedMouse(corner.x + 45, corner.y + 3000);
  EXPECT_EQ(form.SS_StatusBar.panelText(1), "");
}

}  // namespace
}  // namespace dialog
