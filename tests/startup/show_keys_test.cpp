// Keys in the show: steps, and how it ends.
#include <gtest/gtest.h>

#include <set>
#include "startup/show_keys.h"
#include "support/keyed_show.h"

namespace {

using namespace support::key;
using support::KeyedShow;

class ShowKeys : public testing::Test, protected KeyedShow {};

TEST_F(ShowKeys, WithoutTheSettingEveryKeyEndsTheShow) {
  for (const char* value : {"", "0", "yes"}) {
    for (int keyCode = 1; keyCode < 256; ++keyCode) {
      KeyedShow other;
      other.stage.set("extras/keys", value);
      other.start();
      other.press(keyCode);
      EXPECT_TRUE(other.hasEnded()) << keyCode;
    }
  }
}

TEST_F(ShowKeys, EveryKeyWithoutAWishEndsTheShow) {
  std::set<int> wishes = {kEnter, kSpace, kPageUp, kPageDown, kLeft, kRight, kDelete, kF1};
  for (const char letter : std::string("NBPIOH")) wishes.insert(letter);
  for (int keyCode = 1; keyCode < 256; ++keyCode) {
    EXPECT_EQ(startup::WishOfKey(keyCode).has_value(), wishes.contains(keyCode)) << keyCode;
    if (wishes.contains(keyCode)) continue;
    KeyedShow other;
    other.start();
    other.press(keyCode);
    EXPECT_TRUE(other.hasEnded()) << keyCode;
  }
}

TEST_F(ShowKeys, AnEndingKeyThatIsHeldEndsTheShowToo) {
  begin(1);
  repeat(kEscape);
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowKeys, StepForthAndBack) {
  begin(4);
  EXPECT_EQ(shown(), 0);
  EXPECT_EQ(shownBy({kRight, kPageDown, 'N'}), (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(shownBy({kLeft, kPageUp, 'B'}), (std::vector<int>{2, 1, 0}));
  EXPECT_EQ(shownBy({kLeft}), std::vector<int>{0});
  EXPECT_EQ(sign(), "There is no picture before this one.");
  EXPECT_EQ(shownBy({kRight, kRight, kRight, kRight}), (std::vector<int>{1, 2, 3, 0})) << "round and round";
}

TEST_F(ShowKeys, AStepComesAtOnceWhateverTheEffect) {
  for (const char* change : {"", "crossfade", "direct"}) {
    KeyedShow other;
    other.stage.set("extras/change", change);
    other.stage.set("extras/transitionTime", "5000");
    other.stage.set("transitions/bFade", "1");
    other.addPictures(3);
    other.start();
    other.stage.runFor(6000);
    other.press(kRight);
    other.stage.runFor(15);
    EXPECT_EQ(other.shown(), 1) << change;
  }
}

TEST_F(ShowKeys, AfterAStepThePictureHasItsWholeTime) {
  begin(3);
  stage.runFor(50'000);
  type({kRight});
  stage.runFor(59'000);
  EXPECT_EQ(shown(), 1);
  stage.runFor(2000);
  EXPECT_EQ(shown(), 2);
}

TEST_F(ShowKeys, TheShowGoesOnThroughWhatWasShownAndThenWithWhatWasNext) {
  stage.set("image/randomPick", "1");
  begin(40);
  std::vector<int> seen{shown()};
  for (int i = 0; i < 5; ++i) seen.push_back(shownBy({kRight}).front());
  type({kLeft, kLeft, kLeft});
  EXPECT_EQ(shown(), seen[2]);
  stage.runFor(61'000);
  EXPECT_EQ(shown(), seen[3]);
  stage.runFor(61'000);
  stage.runFor(61'000);
  EXPECT_EQ(shown(), seen[5]);
}

TEST_F(ShowKeys, AHundredAndMorePicturesLieBehind) {
  stage.set("image/randomPick", "1");
  stage.set("extras/shuffle", "1");
  begin(30);
  std::vector<int> seen{shown()};
  for (int i = 0; i < 150; ++i) seen.push_back(shownBy({kRight}).front());
  for (std::size_t i = 150; i-- > 0;) EXPECT_EQ(shownBy({kLeft}).front(), seen[i]) << i;
}

TEST_F(ShowKeys, SteppingBackTakesNoPictureFromTheDeck) {
  stage.set("image/randomPick", "1");
  stage.set("extras/shuffle", "1");
  begin(8);
  std::set<int> round{shown()};
  for (int i = 0; i < 7; ++i) {
    round.insert(shownBy({kRight}).front());
    if (i > 1) type({kLeft, kLeft, kRight, kRight});
  }
  EXPECT_EQ(round.size(), 8U);
}

TEST_F(ShowKeys, StepWhereAPictureStaysForGood) {
  stage.set("image/timeInterval", "0");
  begin(3);
  EXPECT_EQ(shownBy({kRight, kRight, kLeft, kRight, kRight}), (std::vector<int>{1, 2, 1, 2, 0}));
  stage.runFor(600'000);
  EXPECT_EQ(shown(), 0);
}

TEST_F(ShowKeys, TheFirstPictureComesForAKeyBeforeItsTime) {
  addPictures(3);
  start();
  stage.runFor(100);
  type({kLeft});
  EXPECT_EQ(shown(), -1);
  type({kRight});
  EXPECT_EQ(shown(), 0);
  stage.runFor(2000);
  EXPECT_EQ(shown(), 0);
}

TEST_F(ShowKeys, BackPassesOverWhatHasGone) {
  for (const char* ahead : {"0", "1"}) {
    KeyedShow other;
    other.stage.set("extras/loadAhead", ahead);
    other.addPictures(5);
    other.start();
    other.stage.runFor(kFirstPictureMs);
    other.type({kRight, kRight, kRight});
    other.stage.pictures.remove(KeyedShow::pathOf(2));
    other.stage.pictures.remove(KeyedShow::pathOf(1));
    other.type({kLeft});
    EXPECT_EQ(other.shown(), 0) << ahead;
    other.stage.pictures.remove(KeyedShow::pathOf(0));
    other.type({kRight});
    EXPECT_EQ(other.shown(), 3) << ahead;
    other.type({kLeft});
    EXPECT_EQ(other.shown(), 3) << ahead << ": nothing is left before it";
    other.type({kRight});
    EXPECT_EQ(other.shown(), 4) << ahead;
  }
}

TEST_F(ShowKeys, AHeldKeyWalksTenPicturesASecondAtMostAndStopsWhenItIsLetGo) {
  begin(50);
  for (int ms = 0; ms < 3000; ms += 33) {
    repeat(kRight);
    stage.runFor(33);
  }
  EXPECT_GE(shown(), 20);
  EXPECT_LE(shown(), 30);
  const int last = shown();
  stage.runFor(1000);
  EXPECT_EQ(shown(), last);
}

TEST_F(ShowKeys, KeysThatCameWhileNothingWasHeardDoNotPileUp) {
  begin(50);
  stage.loop.post([this] {
    for (int i = 0; i < 30; ++i) repeat(kRight);
  });
  stage.runFor(1000);
  EXPECT_EQ(shown(), 1);
  stage.loop.post([this] {
    for (int i = 0; i < 30; ++i) press(kRight);
  });
  stage.runFor(1000);
  EXPECT_EQ(shown(), 2);
}

TEST_F(ShowKeys, AHeldKeyDoesNotPileUpBehindSlowPictures) {
  stage.set("extras/loadAhead", "1");
  stage.workers.delayMs = [] { return std::optional(700); };
  begin(50);
  stage.runFor(1000);
  ASSERT_EQ(shown(), 0);
  for (int ms = 0; ms < 5000; ms += 33) {
    stage.loop.postAfter(ms, [this] { repeat(kRight); });
  }
  stage.runFor(5000);
  const int last = shown();
  EXPECT_GE(last, 5);
  EXPECT_LE(last, 9);
  stage.runFor(5000);
  EXPECT_LE(shown(), last + 1);
}

TEST_F(ShowKeys, BehindPicturesThatCameAgainTheNextOneIsMadeReadyAsEver) {
  stage.set("extras/loadAhead", "1");
  begin(4);
  EXPECT_EQ(shownBy({kRight, kLeft, kRight}), (std::vector<int>{1, 0, 1}));
  stage.runFor(500);
  stage.workers.delayMs = [] { return std::optional(5000); };
  const std::int64_t pressed = stage.clock.tickMs();
  EXPECT_EQ(shownBy({kRight}), std::vector<int>{2});
  EXPECT_LT(stage.clock.tickMs(), pressed + 5000) << "nobody waited for it";
}

TEST_F(ShowKeys, EndTheShowForThePicturesFolder) {
  for (const int keyCode : {static_cast<int>('O'), kEnter}) {
    KeyedShow other;
    other.addPictures(2);
    other.start();
    other.stage.runFor(kFirstPictureMs);
    other.type({kRight});
    EXPECT_EQ(other.show->pictureToOpen(), "");
    other.press(keyCode);
    EXPECT_TRUE(other.hasEnded());
    EXPECT_TRUE(other.machine.desktop.taskbarVisible);
    EXPECT_EQ(other.show->pictureToOpen(), pathOf(1));
  }
}

TEST_F(ShowKeys, WithoutAPictureThereIsNoFolderToOpen) {
  addPictures(1);
  start();
  press('O');
  EXPECT_FALSE(hasEnded());
}

TEST_F(ShowKeys, AnotherEndOpensNoFolder) {
  begin(1);
  press(kEscape);
  EXPECT_TRUE(hasEnded());
  EXPECT_EQ(show->pictureToOpen(), "");
}

TEST_F(ShowKeys, WhereAPasswordIsAskedForNoFolderIsOpenedAndEscapeAsks) {
  addPictures(2);
  start({.osPlatformId = 1, .usePassword = 1});
  stage.runFor(kFirstPictureMs);
  machine.passwords.accepts = false;
  type({kF1, 'O', kEnter});
  EXPECT_FALSE(hasEnded());
  EXPECT_EQ(notes("Keys").size(), 7U) << "the folder is not offered";
  type({kF1, kRight});
  EXPECT_EQ(shown(), 1) << "steps need no password";
  press(kEscape);
  EXPECT_FALSE(hasEnded());
  machine.passwords.accepts = true;
  press(kEscape);
  EXPECT_TRUE(hasEnded());
}

}  // namespace
