// The key that never shows a picture again.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/keyed_show.h"

namespace {

using namespace support::key;
using support::KeyedShow;
using Strings = std::vector<std::string>;

class KeysThatPutAway : public testing::Test, protected KeyedShow {};

TEST_F(KeysThatPutAway, NeverShowAPictureAgainThatTwoPressesPutAway) {
  begin(3);
  type({kRight, kDelete});
  EXPECT_NE(sign().find("Press Delete again"), std::string::npos);
  EXPECT_NE(sign().find("1.jpg"), std::string::npos);
  EXPECT_EQ(shown(), 1);
  EXPECT_EQ(hidden().count(), 0U);
  type({kDelete});
  EXPECT_EQ(shown(), 2) << "the next one takes its place";
  EXPECT_EQ(sign(), "1.jpg will not be shown again.");
  EXPECT_EQ(hidden().count(), 1U) << "kept at once";
  EXPECT_EQ(shownBy({kRight, kRight, kLeft, kLeft, kLeft}), (std::vector<int>{0, 2, 0, 2, 0}));
}

TEST_F(KeysThatPutAway, APictureThatWasPutAwayIsNotInTheNextShowEither) {
  begin(3);
  type({kDelete, kDelete});
  KeyedShow again;
  again.stage.files.content = stage.files.content;
  again.addPictures(3);
  again.start();
  again.stage.runFor(kFirstPictureMs);
  EXPECT_EQ(again.shown(), 1);
  again.type({kRight, kRight});
  EXPECT_EQ(again.shown(), 1);
  EXPECT_TRUE(hidden().bringBack());
  KeyedShow last;
  last.stage.files.content = stage.files.content;
  last.addPictures(3);
  last.start();
  last.stage.runFor(kFirstPictureMs);
  EXPECT_EQ(last.shown(), 0) << "all were brought back";
}

TEST_F(KeysThatPutAway, TheSecondPressMustComeWithinThreeSeconds) {
  begin(3);
  type({kDelete});
  stage.runFor(3000);
  EXPECT_EQ(sign(), "");
  type({kDelete});
  EXPECT_EQ(hidden().count(), 0U);
  type({kDelete});
  EXPECT_EQ(hidden().count(), 1U);
}

TEST_F(KeysThatPutAway, APressAboutOnePictureConfirmsNoneAboutAnother) {
  begin(3);
  type({kDelete, kRight, kDelete});
  EXPECT_EQ(hidden().count(), 0U);
  EXPECT_NE(sign().find("1.jpg"), std::string::npos);
}

TEST_F(KeysThatPutAway, AHeldDeleteKeyPutsNothingAway) {
  begin(3);
  press(kDelete);
  for (int i = 0; i < 50; ++i) {
    repeat(kDelete);
    stage.runFor(33);
  }
  EXPECT_EQ(hidden().count(), 0U);
}

TEST_F(KeysThatPutAway, APictureThatIsAskedAboutStaysForThatTime) {
  stage.set("image/timeInterval", "1");
  begin(3);
  stage.runFor(700);
  ASSERT_EQ(shown(), 0);
  press(kDelete);
  stage.runFor(2900);
  EXPECT_EQ(shown(), 0);
  stage.runFor(500);
  EXPECT_EQ(shown(), 1);
  stage.runFor(1400);
  EXPECT_EQ(shown(), 2) << "the next ones have the usual time";
}

TEST_F(KeysThatPutAway, WhenTheLastPictureWasPutAwayTheBackgroundStandsAndSaysSo) {
  for (const char* change : {"", "crossfade", "direct"}) {
    KeyedShow other;
    other.stage.set("extras/change", change);
    other.stage.set("image/timeInterval", "5");
    other.addPictures(2);
    other.start();
    other.stage.runFor(kFirstPictureMs);
    other.type({kDelete, kDelete, kDelete, kDelete});
    EXPECT_EQ(other.shown(), -1) << change;
    EXPECT_EQ(other.sign(), "No pictures are left to show. The settings can bring them back.");
    other.stage.runFor(20'000);
    EXPECT_EQ(other.sign(), "");
    other.type({kRight});
    EXPECT_NE(other.sign(), "") << "who looks for one is told again";
    other.type({kLeft, kSpace, 'I', kDelete, kDelete});
    EXPECT_EQ(other.notes("Information"), Strings{"No picture"});
    EXPECT_FALSE(other.hasEnded());
    EXPECT_TRUE(other.stage.errors.empty());
  }
}

TEST_F(KeysThatPutAway, WhatCannotBeKeptIsLeftOutOfThisShowAndTheUserIsTold) {
  begin(3);
  stage.files.writable = false;
  type({kDelete, kDelete});
  EXPECT_NE(sign().find("could not be kept"), std::string::npos);
  EXPECT_EQ(shownBy({kRight, kRight}), (std::vector<int>{2, 1}));
}

TEST_F(KeysThatPutAway, PuttingAwayKeepsWhereAnEarlierShowEnded) {
  const library::ShowState earlier{.position = {9, pathOf(2)}, .lastIndex = 2, .hidden = {}};
  library::KeptFile file(stage.files, {support::ShowStage::programFolder()}, library::kShowStateName,
                         library::kShowStateKind);
  file.save(library::PayloadOf(earlier));
  begin(4);
  EXPECT_EQ(shown(), 0) << "this one does not go on there";
  type({kDelete, kDelete});
  const library::ShowState now = LoadShowState(file);
  EXPECT_EQ(now.position, earlier.position);
  EXPECT_EQ(now.hidden, Strings{pathOf(0)});
}

TEST_F(KeysThatPutAway, AShowThatResumesKeepsBoth) {
  stage.set("extras/resume", "1");
  begin(4);
  type({kRight, kDelete, kDelete});
  press(kEscape);
  library::KeptFile file(stage.files, {support::ShowStage::programFolder()}, library::kShowStateName,
                         library::kShowStateKind);
  const library::ShowState now = LoadShowState(file);
  EXPECT_EQ(now.position.lastPath, pathOf(2));
  EXPECT_EQ(now.hidden, Strings{pathOf(1)});
}

TEST_F(KeysThatPutAway, APictureThatTheListHasTwiceGoesFromBothPlaces) {
  addPictures(4);
  stage.set("images/2", "C:\\PICTURES\\0.jpg");
  start();
  stage.runFor(kFirstPictureMs);
  type({kDelete, kDelete});
  EXPECT_EQ(shown(), 1);
  EXPECT_EQ(shownBy({kRight, kRight}), (std::vector<int>{3, 1}));
}

TEST_F(KeysThatPutAway, BehindANewestPictureThatWasPutAwayTheOrderGoesOn) {
  begin(5);
  type({kRight, kRight, kRight, kLeft, kLeft, kLeft, kDelete, kDelete});
  EXPECT_EQ(shown(), 1);
  type({kRight, kRight, kDelete, kDelete});
  EXPECT_EQ(shown(), 4) << "behind 3, though another one before it has gone too";
}

}  // namespace
