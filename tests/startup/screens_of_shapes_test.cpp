// Screens that take pictures of their own shape.
#include <gtest/gtest.h>

#include <vector>

#include "support/several_screens.h"

namespace {

using support::kBlue;
using support::kGreen;
using support::kRed;
using support::kViolet;
using support::kYellow;

// Pictures whose colours tell their shapes: red and green ones are wide, blue and yellow ones high.
class ScreensOfTwoShapes : public testing::Test, protected support::ScreensShow {
 protected:
  ScreensOfTwoShapes() {
    stage.set("extras/matchOrientation", "1");
    stage.screen.others = {{-600, -200, 600, 900}};
  }

  void addWide(base::PackedColor color) { stage.addPicture({400, 300}, color); }
  void addHigh(base::PackedColor color) { stage.addPicture({300, 400}, color); }
};

TEST_F(ScreensOfTwoShapes, TakeTheNextPicturesOfTheirShape) {
  for (const char* ahead : {"", "1"}) {
    SCOPED_TRACE(ahead);
    support::StartedShow run;
    run.stage.screen.others = stage.screen.others;
    for (const char* key : {"extras/matchOrientation", "extras/loadAhead"}) run.stage.set(key, "1");
    run.stage.set("extras/loadAhead", ahead);
    run.stage.set("extras/otherScreens", "different");
    run.stage.workers.delayMs = [] { return std::optional(5); };
    run.stage.addPicture({300, 400}, kBlue);
    run.stage.addPicture({400, 300}, kRed);
    run.stage.addPicture({400, 300}, kGreen);
    run.stage.addPicture({300, 400}, kYellow);
    run.start();
    run.stage.runFor(700);
    EXPECT_EQ(run.stage.screenAt(512, 384), base::OpaquePixel(kRed));
    EXPECT_EQ(run.covers.at(0)->screen.at(300, 450), base::OpaquePixel(kBlue));
    run.stage.runFor(1400);
    EXPECT_EQ(run.stage.screenAt(512, 384), base::OpaquePixel(kGreen));
    EXPECT_EQ(run.covers.at(0)->screen.at(300, 450), base::OpaquePixel(kYellow));
    EXPECT_EQ(run.stage.workers.jobs > 0, *ahead == '1') << "who waits for a shape needs nobody to read it";
  }
}

TEST_F(ScreensOfTwoShapes, TakeWhatComesWhereTheKeyIsAbsent) {
  stage.drop("extras/matchOrientation");
  addHigh(kBlue);
  addWide(kRed);
  startShowing("different");
  stage.runFor(700);
  EXPECT_EQ(middles(), pixels({kBlue, kRed}));
}

TEST_F(ScreensOfTwoShapes, TakeTurnsWithWhatThereIsWhenNothingFits) {
  for (const base::PackedColor color : {kRed, kGreen, kViolet}) addWide(color);
  startShowing("different");
  stage.runFor(700);
  EXPECT_EQ(middles(), pixels({kRed, kGreen}));
}

TEST_F(ScreensOfTwoShapes, SkipNothingForGood) {
  addHigh(kBlue);
  addHigh(kYellow);
  for (int i = 0; i < 3; ++i) addWide(kRed);
  addWide(kGreen);
  stage.screen.others = {{1024, 0, 800, 600}};  // no screen is high
  startShowing("different");
  stage.runFor(700);
  std::set<base::Pixel> seen;
  for (int change = 0; change < 60; ++change) {
    for (const base::Pixel pixel : middles()) seen.insert(pixel);
    stage.runFor(1400);
  }
  EXPECT_TRUE(seen.contains(base::OpaquePixel(kBlue)));
  EXPECT_TRUE(seen.contains(base::OpaquePixel(kYellow)));
}

}  // namespace
