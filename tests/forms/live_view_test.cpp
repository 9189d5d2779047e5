#include "forms/live_view.h"

#include <gtest/gtest.h>

#include "forms/form.h"

namespace forms {
namespace {

struct Host : FormHost {
  std::vector<base::PixelRect> drawn;
  std::vector<Change> changes;

  void controlChanged(Control&, Change change) override { changes.push_back(change); }
  void controlDrawn(Control&, std::span<const base::PixelRect> areas) override {
    drawn.insert(drawn.end(), areas.begin(), areas.end());
  }
  base::PixelSize measureText(const base::Font&, const std::string&) override { return {}; }
  int twipsPerPixel() const override { return 15; }
};

struct LiveViewTest : testing::Test {
  Host host;
  Form form{"form"};
  LiveView view{form, "view"};

  LiveViewTest() {
    form.setHost(&host);
    view.move(0, 0, 202 * 15, 102 * 15);
    host.changes.clear();
  }
};

TEST_F(LiveViewTest, AShapeFillsTheBoxByItsLongerSide) {
  EXPECT_EQ(FillInside({1920, 1080}, {384, 216}), (base::PixelSize{384, 216}));
  EXPECT_EQ(FillInside({1080, 1920}, {384, 216}), (base::PixelSize{122, 216}));
  EXPECT_EQ(FillInside({3440, 1440}, {384, 216}), (base::PixelSize{384, 161}));
  EXPECT_EQ(FillInside({100000, 1}, {384, 216}), (base::PixelSize{384, 1}));
  EXPECT_EQ(FillInside({}, {384, 216}), (base::PixelSize{1, 1}));
}

TEST_F(LiveViewTest, APictureStandsInTheMiddleWithRoomForItsLine) {
  EXPECT_EQ(view.frameSize({16, 8}), (base::PixelSize{200, 100}));
  EXPECT_EQ(view.framePlace(), base::PixelRect());
  view.setFrame(std::make_shared<base::Bitmap>(base::PixelSize{100, 100}));
  EXPECT_EQ(view.framePlace(), (base::PixelRect{51, 1, 100, 100}));
  EXPECT_EQ(host.changes, std::vector<Change>{Change::Picture});
}

TEST_F(LiveViewTest, WhatIsDrawnIsToldInThePicturesPixels) {
  const base::PixelRect area{3, 4, 5, 6};
  view.frameDrawn({&area, 1});
  EXPECT_EQ(host.drawn, std::vector<base::PixelRect>{area});
  form.setHost(nullptr);
  view.frameDrawn({&area, 1});
  EXPECT_EQ(host.drawn.size(), 1U);
}

TEST_F(LiveViewTest, AFormTellsWhenItsWindowBecomesAnIconAndBack) {
  int told = 0;
  form.onMinimizedChanged = [&] { ++told; };
  form.userMinimized(false);
  EXPECT_EQ(told, 0);
  form.userMinimized(true);
  EXPECT_TRUE(form.isMinimized());
  form.userMinimized(false);
  EXPECT_FALSE(form.isMinimized());
  EXPECT_EQ(told, 2);
}

}  // namespace
}  // namespace forms
