// Keys while a picture changes, or is awaited.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/keyed_show.h"

namespace {

using namespace support::key;
using support::KeyedShow;
using Strings = std::vector<std::string>;

// A change that the timer has begun, in the middle of which a key is pressed.
struct ChangeKind {
  const char* change;
  int pressedAfterMs;
};

class KeyInAChange : public testing::TestWithParam<ChangeKind>, protected KeyedShow {
 protected:
  // Presses in the middle of the change from the first picture to the second. Gives what is shown soon after.
  int pressedInChange(int keyCode) {
    stage.set("extras/change", GetParam().change);
    stage.set("extras/transitionTime", "4000");
    stage.set("transitions/bLeftWipe", "1");
    stage.set("image/timeInterval", "10");
    addPictures(5);
    start();
    int after = -2;
    const std::int64_t begins = 500 + firstChangeMs() + 10'000;
    stage.loop.postAfter(begins + GetParam().pressedAfterMs, [this, keyCode] { press(keyCode); });
    stage.loop.postAfter(begins + GetParam().pressedAfterMs + 60, [this, &after] { after = shown(); });
    stage.runFor(begins + GetParam().pressedAfterMs + 61);
    return after;
  }

 private:
  // Nothing is to be seen of a first change but the picture that comes.
  static int firstChangeMs() { return 4000; }
};

TEST_P(KeyInAChange, BringsItToItsEndAtOnceAndTheNextPictureFollows) {
  EXPECT_EQ(pressedInChange(kRight), 2);
}

TEST_P(KeyInAChange, BringsItToItsEndAtOnceAndThePictureBeforeFollows) {
  EXPECT_EQ(pressedInChange(kLeft), 0);
}

TEST_P(KeyInAChange, BringsItToItsEndAtOnceAndHoldsTheNewPicture) {
  EXPECT_EQ(pressedInChange(kSpace), 1);
  stage.runFor(100'000);
  EXPECT_EQ(shown(), 1);
}

TEST_P(KeyInAChange, BringsItToItsEndAtOnceAndTellsAboutTheNewPicture) {
  EXPECT_EQ(pressedInChange('I'), 1);
  EXPECT_EQ(notes("Information").front(), "1.jpg");
}

TEST_P(KeyInAChange, BringsItToItsEndAtOnceAndAsksAboutTheNewPicture) {
  EXPECT_EQ(pressedInChange(kDelete), 1);
  EXPECT_NE(sign().find("1.jpg"), std::string::npos);
}

TEST_P(KeyInAChange, ThatEndsTheShowEndsItAtOnce) {
  pressedInChange(kEscape);
  EXPECT_TRUE(hasEnded());
}

INSTANTIATE_TEST_SUITE_P(OfEveryKind, KeyInAChange,
                         testing::Values(ChangeKind{"", 1000},  // the old one goes
                                         ChangeKind{"", 4100},  // the background stands alone
                                         ChangeKind{"", 6000},  // the new one comes
                                         ChangeKind{"crossfade", 1000}, ChangeKind{"crossfade", 3990},
                                         ChangeKind{"direct", 1000}, ChangeKind{"direct", 3990}));

// The second picture is not there when its time has come.
class KeyWhileAwaiting : public testing::Test, protected KeyedShow {
 protected:
  int pressedWhileAwaiting(int keyCode) {
    stage.set("extras/loadAhead", "1");
    stage.set("image/timeInterval", "5");
    addPictures(5);
    int jobs = 0;
    stage.workers.delayMs = [&jobs] { return std::optional(++jobs == 2 ? 9500 : 10); };
    start();
    int after = -2;
    stage.loop.postAfter(6500, [this, keyCode] { press(keyCode); });
    stage.loop.postAfter(6700, [this, &after] { after = shown(); });
    stage.runFor(6701);
    stage.workers.delayMs = [] { return std::optional(10); };
    return after;
  }
};

TEST_F(KeyWhileAwaiting, TheNextPictureIsTheOneBehindIt) {
  EXPECT_EQ(pressedWhileAwaiting(kRight), 0) << "the thread is still busy with the one before";
  stage.runFor(4000);
  EXPECT_EQ(shown(), 2);
  type({kLeft});
  EXPECT_EQ(shown(), 0) << "the other one was never shown";
}

TEST_F(KeyWhileAwaiting, AHeldPictureIsTheOneThatIsSeen) {
  EXPECT_EQ(pressedWhileAwaiting(kSpace), 0);
  EXPECT_EQ(sign(), "The picture is held.");
  stage.runFor(100'000);
  EXPECT_EQ(shown(), 0);
  type({kSpace});
  stage.runFor(5100);
  EXPECT_EQ(shown(), 1) << "what was awaited comes next";
}

TEST_F(KeyWhileAwaiting, TheOneBeforeTheFirstIsNone) {
  EXPECT_EQ(pressedWhileAwaiting(kLeft), 0);
  EXPECT_EQ(sign(), "There is no picture before this one.");
  stage.runFor(6000);
  EXPECT_EQ(shown(), 1);
}

TEST_F(KeyWhileAwaiting, WhatIsAskedAboutIsThePictureThatIsSeen) {
  EXPECT_EQ(pressedWhileAwaiting(kDelete), 0);
  EXPECT_NE(sign().find("0.jpg"), std::string::npos);
}

TEST_F(KeyWhileAwaiting, InformationIsThereAtOnceAndFollowsThePicture) {
  Strings told;
  stage.loop.postAfter(6600, [&] { told = notes("Information"); });
  EXPECT_EQ(pressedWhileAwaiting('I'), 0);
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.front(), "0.jpg");
  stage.runFor(4000);
  EXPECT_EQ(notes("Information").front(), "1.jpg");
}

}  // namespace
