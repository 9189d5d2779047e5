#include "forms/form.h"

#include <gtest/gtest.h>

#include "forms/containers.h"
#include "forms/texts.h"

namespace forms {
namespace {

// A tab control with a frame on its first page, a label on the frame, and another page over the same place.
struct FormTest : testing::Test {
  Form form{"Form"};
  TabControl tabs{form, "tabs", {"1", "2"}};
  Frame frame{form, "frame"};
  Label label{form, "label"};
  Label other{form, "other"};
  std::string heard;

  FormTest() {
    tabs.move(100, 100, 1000, 1000);
    tabs.page(0).move(10, 200, 980, 790);
    tabs.page(1).move(10, 200, 980, 790);
    frame.setContainer(&tabs.page(0));
    frame.move(100, 100, 500, 500);
    label.setContainer(&frame);
    label.move(50, 50, 100, 100);
    other.setContainer(&tabs.page(1));
    other.move(150, 150, 100, 100);
    form.onMouseMove = [this](const MouseEvent&) { heard = "form"; };
    for (Control* control : std::initializer_list<Control*>{&tabs, &frame, &label, &other}) {
      control->onMouseMove = [this, control](const MouseEvent&) { heard = control->name(); };
    }
  }

  std::string at(float x, float y) {
    heard = "nobody";
    form.userMovedMouse(x, y);
    return heard;
  }
};

TEST_F(FormTest, TheInnermostControlUnderThePointerHearsOfIt) {
  EXPECT_EQ(at(5, 5), "form");
  EXPECT_EQ(at(150, 150), "tabs");
  EXPECT_EQ(at(150, 350), "tabs") << "a page is the tab control's own surface";
  EXPECT_EQ(at(220, 410), "frame");
  EXPECT_EQ(at(265, 455), "label");
}

TEST_F(FormTest, ControlsOfHiddenPagesHearNothing) {
  EXPECT_EQ(at(265, 455), "label");
  tabs.setTab(1);
  EXPECT_EQ(at(265, 455), "other");
}

TEST_F(FormTest, ADisabledControlLeavesThePointerToWhatItStandsOn) {
  label.setEnabled(false);
  EXPECT_EQ(at(265, 455), "frame");
  frame.setEnabled(false);
  EXPECT_EQ(at(265, 455), "tabs");
  label.setEnabled(true);
  EXPECT_EQ(at(265, 455), "tabs") << "a disabled frame takes its controls with it";
  tabs.setEnabled(false);
  EXPECT_EQ(at(265, 455), "form");
}

TEST_F(FormTest, AControlWithoutAHandlerKeepsThePointerFromWhatItStandsOn) {
  label.onMouseMove = nullptr;
  EXPECT_EQ(at(265, 455), "nobody");
}

TEST_F(FormTest, ThePlaceIsReportedInTheControlsOwnTwips) {
  MouseEvent seen;
  label.onMouseMove = [&](const MouseEvent& event) { seen = event; };
  form.userMovedMouse(265, 458);
  EXPECT_EQ(seen.x, 5);
  EXPECT_EQ(seen.y, 8);
}

}  // namespace
}  // namespace forms
