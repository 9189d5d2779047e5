#include "forms/layout_scale.h"

#include <gtest/gtest.h>

#include "forms/buttons.h"
#include "forms/form.h"
#include "forms/texts.h"

namespace forms {
namespace {

// Every letter as wide as that.
FontMeasure FontOf(int letterWidth, int lineHeight) {
  return {[letterWidth](const std::string& text) { return static_cast<int>(text.size()) * letterWidth; },
          lineHeight};
}

struct LayoutScaleTest : testing::Test {
  Form form{"Form"};
  Label label{form, "label"};
  CommandButton button{form, "button"};

  LayoutScaleTest() {
    form.setClientSize(3000, 1500);
    label.setCaption("twelve chars");
    label.move(150, 150, 1500, 240);
    button.setCaption("&OK");
    button.move(150, 600, 900, 390);
  }
};

TEST_F(LayoutScaleTest, TheUsualFontLeavesTheLayoutAsItWasBuilt) {
  EXPECT_EQ(ScaleForFont(form, FontOf(6, 15)), LayoutScale{});
  EXPECT_EQ(ScaleForFont(form, FontOf(4, 11)), LayoutScale{}) << "a smaller one too";
}

TEST_F(LayoutScaleTest, ALargerFontMakesRoomInProportion) {
  const LayoutScale scale = ScaleForFont(form, FontOf(15, 36));
  EXPECT_FLOAT_EQ(scale.vertical, 36 * 15 / 240.0F);
  EXPECT_GE(scale.horizontal, 15 * 15 / 99.0F);
}

TEST_F(LayoutScaleTest, TheCaptionThatNeedsMostDecides) {
  label.setCaption("a label of thirty characters..");
  const LayoutScale scale = ScaleForFont(form, FontOf(6, 15));
  EXPECT_FLOAT_EQ(scale.horizontal, 30 * 6 * 15 / 1500.0F);
  form.setLayoutScale(scale);
  EXPECT_GE(label.width(), 30 * 6 * 15 - 0.01F);
  EXPECT_EQ(ScaleForFont(form, FontOf(6, 15)), scale) << "asked again, it is not scaled twice";
}

TEST_F(LayoutScaleTest, ALabelThatWrapsNeedsNoWidthOfItsOwn) {
  label.wraps = true;
  label.setCaption("a label of thirty characters..");
  EXPECT_EQ(ScaleForFont(form, FontOf(6, 15)), LayoutScale{});
}

TEST_F(LayoutScaleTest, EverythingGrowsWithTheFormAndGoesBack) {
  form.setLayoutScale({2, 1.5F});
  EXPECT_FLOAT_EQ(form.clientWidth(), 6000);
  EXPECT_FLOAT_EQ(form.clientHeight(), 2250);
  EXPECT_FLOAT_EQ(button.left(), 300);
  EXPECT_FLOAT_EQ(button.top(), 900);
  EXPECT_FLOAT_EQ(button.width(), 1800);
  EXPECT_FLOAT_EQ(button.height(), 585);
  form.setLayoutScale({});
  EXPECT_FLOAT_EQ(form.clientWidth(), 3000);
  EXPECT_FLOAT_EQ(button.height(), 390);
}

}  // namespace
}  // namespace forms
