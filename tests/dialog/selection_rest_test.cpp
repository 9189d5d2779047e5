#include "dialog/picture_list.h"

#include <gtest/gtest.h>

#include "support/fake_clock.h"
#include "support/fake_event_loop.h"

namespace dialog {
namespace {

struct SelectionRestTest : testing::Test {
  support::FakeClock clock;
  support::FakeEventLoop loop{clock};
  int rests = 0;
  SelectionRest rest{loop, [this] { ++rests; }};
};

TEST_F(SelectionRestTest, AMoveOutOfRestIsShownAtOnceAndNotAgain) {
  EXPECT_TRUE(rest.moved());
  loop.runFor(1000);
  EXPECT_EQ(rests, 0);
  EXPECT_EQ(loop.timersRunning(), 0);
}

TEST_F(SelectionRestTest, MovesOfAHeldKeyAreShownOnceTheyEnd) {
  EXPECT_TRUE(rest.moved());
  for (int i = 0; i < 100; ++i) {
    loop.runFor(33);
    EXPECT_FALSE(rest.moved());
  }
  EXPECT_EQ(rests, 0);
  loop.runFor(SelectionRest::kRestMs - 1);
  EXPECT_EQ(rests, 0);
  loop.runFor(1);
  EXPECT_EQ(rests, 1);
  loop.runFor(1000);
  EXPECT_EQ(rests, 1);
}

TEST_F(SelectionRestTest, MovesFurtherApartThanTheRestAreAllShownAtOnce) {
  for (int i = 0; i < 5; ++i) {
    EXPECT_TRUE(rest.moved());
    loop.runFor(SelectionRest::kRestMs);
  }
  EXPECT_EQ(rests, 0);
}

TEST_F(SelectionRestTest, SettlingForgetsWhatWaited) {
  rest.moved();
  rest.moved();
  rest.settle();
  loop.runFor(1000);
  EXPECT_EQ(rests, 0);
  EXPECT_TRUE(rest.moved());
}

TEST_F(SelectionRestTest, WhatIsShownAtRestMayMoveTheSelectionItself) {
  bool shownAtOnce = false;
  SelectionRest moving(loop, [&] {
    shownAtOnce = moving.moved();
    ++rests;
  });
  moving.moved();
  moving.moved();
  loop.runFor(1000);
  EXPECT_EQ(rests, 1);
  EXPECT_TRUE(shownAtOnce);
}

}  // namespace
}  // namespace dialog
