// Keys in the show: [extras] keys.
#include "startup/show_keys.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "library/hidden_pictures.h"
#include "support/keyed_show.h"

namespace {

using namespace support::key;
using support::KeyedShow;
using Strings = std::vector<std::string>;

constexpr int kFirstPictureMs = 700;

class ShowKeys : public testing::Test, protected KeyedShow {
 protected:
  void begin(int pictures) {
    addPictures(pictures);
    start();
    stage.runFor(kFirstPictureMs);
  }

  // What a press shows, step by step.
  std::vector<int> shownBy(const std::vector<int>& keyCodes) {
    std::vector<int> all;
    for (const int keyCode : keyCodes) {
      type({keyCode});
      all.push_back(shown());
    }
    return all;
  }

  library::HiddenPictures hidden() { return {stage.files, {support::ShowStage::programFolder()}}; }
};

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

TEST_F(ShowKeys, HoldThePictureUntilTheShowIsToGoOn) {
  begin(3);
  type({kSpace});
  EXPECT_EQ(sign(), "The picture is held.");
  stage.runFor(1900);
  EXPECT_EQ(sign(), "") << "after two seconds";
  stage.runFor(600'000);
  EXPECT_EQ(shown(), 0);
  type({'P'});
  EXPECT_EQ(sign(), "The show goes on.");
  stage.runFor(59'000);
  EXPECT_EQ(shown(), 0);
  stage.runFor(2000);
  EXPECT_EQ(shown(), 1);
}

TEST_F(ShowKeys, AHeldShowCanBeSteppedThroughAndStaysHeld) {
  begin(3);
  type({kSpace, kRight});
  EXPECT_EQ(shown(), 1);
  stage.runFor(600'000);
  EXPECT_EQ(shown(), 1);
}

TEST_F(ShowKeys, AHeldKeyForHoldingHoldsOnce) {
  begin(3);
  press(kSpace);
  for (int i = 0; i < 7; ++i) repeat(kSpace);
  EXPECT_EQ(sign(), "The picture is held.");
}

TEST_F(ShowKeys, AHeldPictureFloatsNoFurtherAndTheClockGoesOn) {
  stage.set("image/picRandom", "rand");
  stage.set("image/timeDisplay", "1");
  begin(2);
  type({kSpace});
  const base::PixelRect place = show->form().DisplayingPicture.pixelRect();
  const std::string time = show->form().time.caption();
  stage.runFor(5000);
  EXPECT_EQ(show->form().DisplayingPicture.pixelRect(), place);
  EXPECT_NE(show->form().time.caption(), time);
  type({kSpace});
  stage.runFor(5000);
  EXPECT_NE(show->form().DisplayingPicture.pixelRect(), place);
}

TEST_F(ShowKeys, AHeldPictureGlidesNoFurtherAndGoesOnFromThere) {
  stage.set("extras/fit", "fill");
  stage.set("extras/panZoom", "20");
  addPictures(1);
  base::Bitmap stripes({640, 480});
  for (int y = 0; y < 480; ++y) {
    for (int x = 0; x < 640; ++x)
      stripes.row(y)[x] = 0xFF000000U | static_cast<base::Pixel>(x * 255 / 640) << 16;
  }
  stripes.setOpaque(true);
  stage.pictures.add(pathOf(0), std::move(stripes));
  start();
  stage.runFor(20'000);
  type({kSpace});
  stage.runFor(3000);  // the sign has gone
  const base::Bitmap held = stage.window.screen;
  stage.runFor(10'000);
  EXPECT_TRUE(stage.window.screen == held);
  type({kSpace});
  stage.runFor(3000);
  EXPECT_FALSE(stage.window.screen == held);
}

TEST_F(ShowKeys, TellNameFolderAndNumberOfThePicture) {
  begin(3);
  type({kRight, 'I'});
  EXPECT_EQ(notes("Information"), (Strings{"1.jpg", "C:\\pictures", "2 of 3"}));
  type({kRight});
  EXPECT_EQ(notes("Information"), (Strings{"2.jpg", "C:\\pictures", "3 of 3"}));
  type({'I'});
  EXPECT_EQ(notes("Information"), Strings{});
}

TEST_F(ShowKeys, TellWhenThePictureWasTaken) {
  for (const char* ahead : {"0", "1"}) {
    KeyedShow other;
    other.stage.set("extras/loadAhead", ahead);
    other.addPictures(2);
    other.stage.pictures.facts[pathOf(1)].date = os::LocalTime{2024, 7, 21, 15, 4, 5};
    other.start();
    other.stage.runFor(kFirstPictureMs);
    other.type({'I', kRight});
    EXPECT_EQ(other.notes("Information"),
              (Strings{"1.jpg", "C:\\pictures", "7/21/2024 3:04:05 PM", "2 of 2"}));
  }
}

TEST_F(ShowKeys, InformationWaitsForNoDisk) {
  stage.set("extras/loadAhead", "1");
  begin(3);
  stage.pictures.opened.clear();
  stage.pictures.factsAsked.clear();
  stage.files.reads.clear();
  stage.files.lookups.clear();
  press('I');
  EXPECT_TRUE(stage.pictures.opened.empty());
  EXPECT_TRUE(stage.pictures.factsAsked.empty());
  EXPECT_TRUE(stage.files.reads.empty());
  EXPECT_TRUE(stage.files.lookups.empty());
}

TEST_F(ShowKeys, NeverShowAPictureAgainThatTwoPressesPutAway) {
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

TEST_F(ShowKeys, APictureThatWasPutAwayIsNotInTheNextShowEither) {
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

TEST_F(ShowKeys, TheSecondPressMustComeWithinThreeSeconds) {
  begin(3);
  type({kDelete});
  stage.runFor(3000);
  EXPECT_EQ(sign(), "");
  type({kDelete});
  EXPECT_EQ(hidden().count(), 0U);
  type({kDelete});
  EXPECT_EQ(hidden().count(), 1U);
}

TEST_F(ShowKeys, APressAboutOnePictureConfirmsNoneAboutAnother) {
  begin(3);
  type({kDelete, kRight, kDelete});
  EXPECT_EQ(hidden().count(), 0U);
  EXPECT_NE(sign().find("1.jpg"), std::string::npos);
}

TEST_F(ShowKeys, AHeldDeleteKeyPutsNothingAway) {
  begin(3);
  press(kDelete);
  for (int i = 0; i < 50; ++i) {
    repeat(kDelete);
    stage.runFor(33);
  }
  EXPECT_EQ(hidden().count(), 0U);
}

TEST_F(ShowKeys, APictureThatIsAskedAboutStaysForThatTime) {
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

TEST_F(ShowKeys, WhenTheLastPictureWasPutAwayTheBackgroundStandsAndSaysSo) {
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

TEST_F(ShowKeys, WhatCannotBeKeptIsLeftOutOfThisShowAndTheUserIsTold) {
  begin(3);
  stage.files.writable = false;
  type({kDelete, kDelete});
  EXPECT_NE(sign().find("could not be kept"), std::string::npos);
  EXPECT_EQ(shownBy({kRight, kRight}), (std::vector<int>{2, 1}));
}

TEST_F(ShowKeys, PuttingAwayKeepsWhereAnEarlierShowEnded) {
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

TEST_F(ShowKeys, AShowThatResumesKeepsBoth) {
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

TEST_F(ShowKeys, APictureThatTheListHasTwiceGoesFromBothPlaces) {
  addPictures(4);
  stage.set("images/2", "C:\\PICTURES\\0.jpg");
  start();
  stage.runFor(kFirstPictureMs);
  type({kDelete, kDelete});
  EXPECT_EQ(shown(), 1);
  EXPECT_EQ(shownBy({kRight, kRight}), (std::vector<int>{3, 1}));
}

TEST_F(ShowKeys, BehindANewestPictureThatWasPutAwayTheOrderGoesOn) {
  begin(5);
  type({kRight, kRight, kRight, kLeft, kLeft, kLeft, kDelete, kDelete});
  EXPECT_EQ(shown(), 1);
  type({kRight, kRight, kDelete, kDelete});
  EXPECT_EQ(shown(), 4) << "behind 3, though another one before it has gone too";
}

TEST_F(ShowKeys, ShowTheKeysAndHideThem) {
  begin(1);
  type({kF1});
  const Strings keys = notes("Keys");
  ASSERT_EQ(keys.size(), notes("Meanings").size());
  EXPECT_EQ(keys.size(), 8U);
  type({'H'});
  EXPECT_TRUE(notes("Keys").empty());
  EXPECT_TRUE(notes("Meanings").empty());
}

TEST_F(ShowKeys, NotesStayOnTheScreenWhateverItsSize) {
  for (const base::PixelSize size : {base::PixelSize{640, 480}, {200, 100}, {40, 30}, {1, 1}}) {
    KeyedShow other(size);
    other.addPictures(2);
    other.start();
    other.stage.runFor(kFirstPictureMs);
    other.type({kF1, 'I', kDelete});
    for (const forms::Control* control : other.show->form().controls()) {
      if (control->name().starts_with("Sign") && control->visible()) {
        EXPECT_GE(control->pixelRect().left, 0);
        if (size.width >= 200) {
          EXPECT_LE(control->pixelRect().right(), size.width);
        }
      }
    }
    other.stage.screen.size = {300, 200};
    other.window().onScreenChanged();
    other.type({kF1});
    EXPECT_FALSE(other.hasEnded());
  }
}

TEST_F(ShowKeys, NotesLeaveNothingBehind) {
  begin(1);
  stage.runFor(100);
  const base::Bitmap before = stage.window.screen;
  type({kF1, 'I', kSpace, kDelete});
  EXPECT_FALSE(stage.window.screen == before);
  type({kF1, 'I'});
  stage.runFor(4000);
  EXPECT_TRUE(stage.window.screen == before);
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

TEST_F(ShowKeys, KeysOnAFurtherScreenCountToo) {
  stage.set("extras/otherScreens", "black");
  stage.screen.others = {{640, 0, 400, 300}};
  begin(3);
  covers.at(0)->onKeyDown(kRight);
  stage.runFor(100);
  EXPECT_EQ(shown(), 1);
  covers.at(0)->onKeyDown(kEscape);
  EXPECT_TRUE(hasEnded());
}

TEST_F(ShowKeys, StepOnAllScreensTogether) {
  for (const char* kind : {"same", "different"}) {
    const bool isSame = std::string(kind) == "same";
    KeyedShow other;
    other.stage.set("extras/otherScreens", kind);
    other.stage.screen.others = {{640, 0, 400, 300}};
    other.addPictures(7);
    other.start();
    other.stage.runFor(kFirstPictureMs);
    const auto both = [&other] { return std::pair(other.shown(), other.shownIn(*other.covers.at(0))); };
    EXPECT_EQ(both(), std::pair(0, isSame ? 0 : 1));
    other.type({kRight});
    EXPECT_EQ(both(), isSame ? std::pair(1, 1) : std::pair(2, 3));
    other.type({kRight});
    EXPECT_EQ(both(), isSame ? std::pair(2, 2) : std::pair(4, 5));
    other.type({kLeft, kLeft});
    EXPECT_EQ(both(), std::pair(0, isSame ? 0 : 1));
    other.type({kRight, kRight, kRight});
    EXPECT_EQ(both(), isSame ? std::pair(3, 3) : std::pair(6, 0));
  }
}

TEST_F(ShowKeys, StepWhereEachScreenTakesPicturesOfItsShape) {
  stage.set("extras/otherScreens", "different");
  stage.set("extras/matchOrientation", "1");
  stage.screen.others = {{640, 0, 300, 400}};
  begin(6);
  const auto both = [this] { return std::pair(shown(), shownIn(*covers.at(0))); };
  std::vector<std::pair<int, int>> seen{both()};
  for (int i = 0; i < 6; ++i) {
    type({kRight});
    seen.push_back(both());
  }
  for (std::size_t i = 6; i-- > 0;) {
    type({kLeft});
    EXPECT_EQ(both(), seen[i]);
  }
}

TEST_F(ShowKeys, StepBackAfterAScreenHasGone) {
  stage.set("extras/otherScreens", "different");
  stage.screen.others = {{640, 0, 400, 300}};
  begin(6);
  type({kRight, kRight, kLeft});
  stage.screen.others.clear();
  window().onScreenChanged();
  EXPECT_EQ(shownBy({kLeft, kRight, kRight}), (std::vector<int>{0, 2, 4}));
  type({kRight, kRight});
  EXPECT_FALSE(hasEnded());
}

TEST_F(ShowKeys, LoadingAheadTheNextPictureIsReadyInBothDirections) {
  stage.set("extras/loadAhead", "1");
  begin(5);
  EXPECT_EQ(shownBy({kRight, kRight, kLeft, kLeft, kRight, kRight, kRight}),
            (std::vector<int>{1, 2, 1, 0, 1, 2, 3}));
}

}  // namespace
