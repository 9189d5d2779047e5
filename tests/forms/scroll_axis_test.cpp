#include "forms/scroll_axis.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

ScrollAxis AxisOf(int content, int view) {
  ScrollAxis axis;
  axis.resize(content, view);
  return axis;
}

TEST(ScrollAxis, WhatFitsNeverMoves) {
  ScrollAxis axis = AxisOf(500, 500);
  EXPECT_EQ(axis.farthest(), 0);
  EXPECT_FALSE(axis.scrollTo(40));
  EXPECT_FALSE(axis.bringIntoView(480, 500));
  EXPECT_EQ(axis.offset(), 0);
}

TEST(ScrollAxis, NothingIsShownBeyondTheEnds) {
  ScrollAxis axis = AxisOf(800, 500);
  EXPECT_TRUE(axis.scrollTo(1000));
  EXPECT_EQ(axis.offset(), 300);
  EXPECT_TRUE(axis.scrollTo(-5));
  EXPECT_EQ(axis.offset(), 0);
}

TEST(ScrollAxis, AGrowingViewKeepsTheEndAtItsEdge) {
  ScrollAxis axis = AxisOf(800, 500);
  axis.scrollTo(300);
  axis.resize(800, 700);
  EXPECT_EQ(axis.offset(), 100);
}

TEST(ScrollAxis, BringingIntoViewMovesNoFartherThanItTakes) {
  ScrollAxis axis = AxisOf(800, 500);
  EXPECT_FALSE(axis.bringIntoView(100, 200)) << "it is in sight";
  EXPECT_TRUE(axis.bringIntoView(550, 600));
  EXPECT_EQ(axis.offset(), 100);
  EXPECT_TRUE(axis.bringIntoView(40, 60));
  EXPECT_EQ(axis.offset(), 40);
}

TEST(ScrollAxis, OfWhatIsLongerThanTheViewTheStartIsShown) {
  ScrollAxis axis = AxisOf(2000, 500);
  EXPECT_TRUE(axis.bringIntoView(300, 1200));
  EXPECT_EQ(axis.offset(), 300);
}

}  // namespace
}  // namespace forms
