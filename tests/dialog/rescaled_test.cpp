// What the settings dialog draws, after its window has come to a screen with more dots per inch.
#include <gtest/gtest.h>

#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

struct FineScreen : support::FakeWindowSystem {
  int twipsPerPixel() const override { return 8; }  // 192 dots per inch, where 15 are 96
};

class Rescaled : public testing::TestWithParam<const char*> {
 protected:
  Rescaled() {
    machine.setPictures({{"wide.gif", ""}});
    machine.pictures.add("wide.gif", {3000, 1000}, base::Rgb(10, 20, 30));
    machine.pictures.add("back.gif", {3000, 1000}, base::Rgb(30, 20, 10));
    machine.set("background", "backgroundImage", "back.gif");
    for (const char* key : {"redBackground", "greenBackground", "blueBackground"}) {
      machine.set("background", key, "255");
    }
    machine.set("extras", "loadAhead", GetParam());
    dialog = &machine.openDialog();
    machine.rest();
    before = form().host();
  }
  ~Rescaled() override { form().setHost(before); }

  Form2& form() { return dialog->form; }

  // The host has other pixels first, and then lays out what stands on the form.
  void moveToFineScreen() {
    form().setHost(&screen);
    form().setLayoutScale(form().layoutScale());
    machine.loop.runFor(100);
  }

  bool gradientFillsItsBox() {
    const base::SharedBitmap image = form().GradientPicture.image();
    const base::PixelSize size = form().GradientPicture.scaleSize();
    return image->size() == size && (image->at(size.width - 1, 0) & 0xFFFFFF) == 0xFFFFFF &&
           (image->at(0, size.height / 2) & 0xFFFFFF) != 0;
  }

  support::SettingsDialogMachine machine;
  FineScreen screen;
  SettingsDialog* dialog = nullptr;
  forms::FormHost* before = nullptr;
};

TEST_P(Rescaled, TheGradientFillsItsBox) {
  EXPECT_TRUE(gradientFillsItsBox());
  const base::PixelSize size = form().GradientPicture.scaleSize();
  moveToFineScreen();
  EXPECT_GT(form().GradientPicture.scaleSize().width, size.width * 3 / 2);
  EXPECT_TRUE(gradientFillsItsBox());
}

TEST_P(Rescaled, ASliderThatIsMovedFillsItToo) {
  form().setHost(&screen);
  form().redSlider.userSetValue(254);
  form().redSlider.userSetValue(255);
  EXPECT_TRUE(gradientFillsItsBox());
}

TEST_P(Rescaled, TheThumbnailFillsItsBox) {
  ASSERT_TRUE(form().photo1.picture());
  moveToFineScreen();
  EXPECT_EQ(form().photo1.picture()->size(), form().photo1.scaleSize());
}

TEST_P(Rescaled, AThumbnailThatIsStillAwaitedFillsItToo) {
  form().List1.setListIndex(-1);
  form().List1.setListIndex(0);
  moveToFineScreen();
  machine.rest();
  ASSERT_TRUE(form().photo1.picture());
  EXPECT_EQ(form().photo1.picture()->size(), form().photo1.scaleSize());
}

TEST_P(Rescaled, TheBackgroundsPictureIsDrawnForItsPlace) {
  moveToFineScreen();
  ASSERT_TRUE(form().Image1.picture());
  EXPECT_EQ(form().Image1.picture()->size().width, form().Image1.pixelRect().width);
  EXPECT_TRUE(machine.dialogs.messages.empty());
}

TEST_P(Rescaled, WhatIsNotShownIsNotLoadedAndNothingIsTold) {
  form().backgroundCustomImage.userClicked();
  form().removeBackImg.userClicked();
  ASSERT_FALSE(form().Image1.picture());
  form().List1.onDelete();
  const std::size_t opened = machine.pictures.opened.size();
  moveToFineScreen();
  EXPECT_EQ(machine.pictures.opened.size(), opened);
  EXPECT_FALSE(form().photo1.picture());
  EXPECT_TRUE(machine.dialogs.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(LoadedOnTheSpotAndAhead, Rescaled, testing::Values("", "1"));

}  // namespace
}  // namespace dialog
