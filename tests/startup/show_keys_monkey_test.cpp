// A million random events on shows that take keys, against a second reading of what keys do. In parts, which
// a run in shards does at the same time.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <deque>
#include <optional>
#include <random>
#include <set>

#include "library/hidden_pictures.h"
#include "startup/show_keys.h"
#include "support/keyed_show.h"

namespace {

using namespace support::key;
using Random = std::mt19937;

constexpr int kParts = 8;
constexpr int kEventsOfAPart = 125'000;
constexpr int kEventsOfAShow = 1500;
constexpr unsigned kSeed = 20261121;
constexpr int kNothing = -1;  // where a picture has a number
constexpr int kSettleMs = 160;
constexpr int kLookMs = 40;

// What a show of pictures 0 to n - 1 in order does for its keys, told by the end of each of its changes.
class Model {
 public:
  Model(int pictures, std::set<int> missing) : missing_(std::move(missing)) {
    for (int i = 0; i < pictures; ++i) list_.push_back(i);
  }

  // A change has come to its end.
  void come() {
    if (const std::optional<std::size_t> again = ahead()) {
      cursor_ = static_cast<double>(*again);
      bring(past_[*again], true);
    } else {
      const int picture = upcoming_;
      newest_ = picture;
      upcoming_ = follower(picture);
      bring(picture, false);
    }
  }

  // What was awaited has been passed over, and is as if it had come unseen.
  void passOver() {
    if (const std::optional<std::size_t> again = ahead()) {
      cursor_ = static_cast<double>(*again);
    } else {
      newest_ = upcoming_;
      upcoming_ = follower(upcoming_);
    }
  }

  bool back() {
    for (double i = std::ceil(cursor_) - 1; i >= 0; --i) {
      const auto at = static_cast<std::size_t>(i);
      if (!isListed(past_[at])) continue;
      if (missing_.contains(past_[at])) {
        past_.erase(past_.begin() + static_cast<std::ptrdiff_t>(at));
        cursor_ -= 1;
        continue;
      }
      cursor_ = i;
      bring(past_[at], true);
      return true;
    }
    return false;
  }

  void hold() { held_ = !held_; }

  // True when the picture has been put away.
  bool wishAway(std::int64_t now) {
    if (present_ == kNothing) return false;
    if (asked_ != present_ || now >= askedUntil_) {
      asked_ = present_;
      askedUntil_ = now + 3000;
      return false;
    }
    asked_.reset();
    putAway(present_);
    return true;
  }

  int shown() const { return shown_; }
  int present() const { return present_; }
  bool isHeld() const { return held_; }

  // Whether a press comes in time, or would come too late, is a matter of some milliseconds.
  bool isLapsing(std::int64_t now) const { return asked_ && std::abs(now - askedUntil_) < 100; }
  std::size_t left() const { return list_.size(); }
  std::size_t hidden() const { return hidden_; }
  int numberOf(int picture) const {
    return static_cast<int>(std::find(list_.begin(), list_.end(), picture) - list_.begin()) + 1;
  }
  void remove(int picture) { missing_.insert(picture); }

 private:
  bool isListed(int picture) const { return std::find(list_.begin(), list_.end(), picture) != list_.end(); }

  // The picture behind another one in the list, which may have left it.
  int follower(int picture) const {
    if (list_.empty()) return kNothing;
    const auto behind = std::find_if(list_.begin(), list_.end(), [&](int other) { return other > picture; });
    return behind == list_.end() ? list_.front() : *behind;
  }

  // The cursor is the place of the present picture in the past, or half way between two places.
  std::optional<std::size_t> ahead() const {
    for (double i = std::floor(cursor_) + 1; i < static_cast<double>(past_.size()); ++i) {
      if (isListed(past_[static_cast<std::size_t>(i)])) return static_cast<std::size_t>(i);
    }
    return std::nullopt;
  }

  void bring(int picture, bool isAgain) {
    if (picture != present_) asked_.reset();
    present_ = picture;
    const bool seen = picture != kNothing && !missing_.contains(picture);
    shown_ = seen ? picture : kNothing;
    if (isAgain && !seen) {
      past_.erase(past_.begin() + static_cast<std::ptrdiff_t>(cursor_));
      cursor_ -= 0.5;
    } else if (!isAgain && seen) {
      past_.push_back(picture);
      if (past_.size() > 200) past_.pop_front();
      cursor_ = static_cast<double>(past_.size()) - 1;
    } else if (!isAgain) {
      cursor_ = static_cast<double>(past_.size()) - 0.5;
    }
  }

  void putAway(int picture) {
    std::erase(list_, picture);
    ++hidden_;
    upcoming_ = follower(newest_);
    come();
  }

  std::vector<int> list_;
  std::set<int> missing_;
  std::deque<int> past_;
  double cursor_ = -0.5;
  int upcoming_ = 0;
  int newest_ = kNothing;  // that the order has brought
  int present_ = kNothing;
  int shown_ = kNothing;  // the present one, where it could be loaded
  bool held_ = false;
  std::size_t hidden_ = 0;
  std::optional<int> asked_;
  std::int64_t askedUntil_ = 0;
};

class MonkeyKeys {
 public:
  explicit MonkeyKeys(Random& random)
      : random_(random),
        show_({draw(260, 280), draw(10, 20)}),
        pictures_(draw(1, 6)),
        pauses_(draw(0, 2) == 0),
        model_(pictures_, gone()) {
    show_.addPictures(pictures_);
    for (int i = 0; i < pictures_; ++i) show_.stage.set("caption/" + std::to_string(i), "words");
    for (const int picture : gone_) show_.stage.pictures.remove(show_.pathOf(picture));
    set("extras/change",
        pauses_ ? std::vector<std::string>{""} : std::vector<std::string>{"crossfade", "direct"});
    set("extras/transitionTime", {"300", "900"});
    set("extras/loadAhead", {"", "1"});
    set("extras/otherScreens", {"", "same", "different", "black"});
    set("transitions/bLeftWipe", {"1"});

    set("image/timeInterval", {"2", "5"});
    set("image/picRandom", {"cent", "rand"});
    set("image/timeDisplay", {"0", "1"});
    ahead_ = isSetTo_["extras/loadAhead"] == "1";
    if (isSetTo_["extras/otherScreens"] == "different") show_.stage.set("extras/otherScreens", "same");
    show_.stage.screen.others = {{300, 0, 30, 20}};
    show_.stage.workers.delayMs = [this] { return std::optional(draw(0, 2) == 0 ? draw(2000, 8000) : 10); };
    show_.stage.loop.afterEach = [this] { look(); };
    show_.stage.loop.startTimer(kLookMs, [] {});  // so that no change goes unseen
  }

  void run(int events) {
    show_.start();
    while (events_ < events && !testing::Test::HasFailure()) {
      show_.stage.runFor(draw(0, 700));
      act();
    }
    show_.stage.loop.afterEach = nullptr;
    finish();
  }

  int events() const { return events_; }
  int steps() const { return steps_; }
  int inChanges() const { return inChanges_; }
  int whileAwaiting() const { return whileAwaiting_; }

 private:
  enum class State { Resting, Awaiting, Drawing };

  int draw(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }
  std::set<int> gone() {
    for (int i = 0; i < pictures_ && pauses_; ++i) {
      if (draw(0, 11) == 0) gone_.insert(i);
    }
    return gone_;
  }
  void set(const std::string& key, const std::vector<std::string>& values) {
    isSetTo_[key] = values[static_cast<std::size_t>(draw(0, static_cast<int>(values.size()) - 1))];
    show_.stage.set(key, isSetTo_[key]);
    told_ += key + "=" + isSetTo_[key] + "\n";
  }
  saver::Form1& form() { return show_.show->form(); }
  std::int64_t now() const { return show_.stage.clock.tickMs(); }

  // Seen from outside: a change holds the timer, and while the new picture is awaited the old one keeps its
  // caption.
  State state() {
    if (form().ImageChangeTimer.interval() != 60'000) return State::Resting;
    return form().Label1.visible() ? State::Awaiting : State::Drawing;
  }

  // A change that ended by itself brought what was coming.
  void look() {
    ++events_;
    if (form().StartSaver.enabled()) return;
    if (!hasBegun_) model_.come();
    hasBegun_ = true;
    const State is = state();
    if (was_ == State::Resting && is != State::Resting && !byHand_) {
      EXPECT_FALSE(model_.isHeld()) << "a held show changed by itself";
      if (is == State::Awaiting && draw(0, 3) != 0)
        show_.stage.loop.postAfter(draw(1, 1900), [this] { press(); });
    }
    if (was_ != State::Resting && is == State::Resting) {
      if (!byHand_) {
        model_.come();
        told_ += "change at " + std::to_string(now()) + " shows " + std::to_string(model_.present()) + "\n";
      }
      restingSince_ = now();
    }
    if (is == State::Resting && now() >= byHandUntil_) byHand_ = false;
    was_ = is;
  }

  // Presses a key at some moment, in the middle of a change too, and waits for what comes of it.
  void act() {
    show_.stage.loop.postAfter(draw(0, 900), [this] { press(); });
    show_.stage.runFor(901 + kSettleMs);
    const auto isQuiet = [this] { return state() == State::Resting && now() >= byHandUntil_; };
    for (int tries = 0; !isQuiet() && tries < 400; ++tries) show_.stage.runFor(50);
    ASSERT_TRUE(isQuiet());
    compare();
    if (ahead_ || !pauses_ || draw(0, 60) != 0) return;
    const int picture = draw(0, pictures_ - 1);
    show_.stage.pictures.remove(support::KeyedShow::pathOf(picture));
    model_.remove(picture);
  }

  void press() {
    // Whether a step comes before a change that is due now nobody can tell.
    const std::int64_t due = restingSince_ + form().ImageChangeTimer.interval();
    const bool isResting = state() == State::Resting;
    if (!hasBegun_ || (isResting && !model_.isHeld() && due - now() < 2 * kSettleMs)) return;
    static constexpr int kKeys[] = {kRight, 'N', kPageDown, kLeft, 'B',     kPageUp, kSpace,
                                    'P',    'I', kF1,       'H',   kDelete, kDelete};
    const int keyCode = kKeys[draw(0, static_cast<int>(std::size(kKeys)) - 1)];
    const auto wish = *startup::WishOfKey(keyCode);
    const bool isToggle = wish == saver::ShowWish::Information || wish == saver::ShowWish::Help;
    if (byHand_ && (!isToggle || state() != State::Awaiting)) return;
    if (wish == saver::ShowWish::NeverAgain && model_.isLapsing(now())) return;
    if (isResting) {
      byHand_ = true;
      ++steps_;
    } else if (state() == State::Drawing) {
      model_.come();
      byHand_ = true;
      ++inChanges_;
    } else {
      if (!isToggle) pressAwaiting(wish);
      ++whileAwaiting_;
    }
    apply(wish);
    told_ += "key " + std::to_string(keyCode) + " at " + std::to_string(now()) + " while " +
             (isResting                   ? "resting"
              : state() == State::Drawing ? "drawing"
                                          : "awaiting") +
             " shows " + std::to_string(model_.present()) + "\n";
    byHandUntil_ = now() + kSettleMs;
    show_.press(keyCode);
    if (saver::IsStep(wish)) {
      for (int i = draw(0, 3); i > 0; --i) show_.repeat(keyCode);  // in the same moment: nobody hears them
    }
  }

  // What is awaited does not come where something else is wished for.
  void pressAwaiting(saver::ShowWish wish) {
    if (wish == saver::ShowWish::Next) model_.passOver();
    byHand_ = true;
  }

  void apply(saver::ShowWish wish) {
    switch (wish) {
      case saver::ShowWish::Next:
        if (model_.left() > 0) model_.come();
        break;
      case saver::ShowWish::Back:
        model_.back();
        break;
      case saver::ShowWish::Hold:
        model_.hold();
        restingSince_ = now();
        break;
      case saver::ShowWish::NeverAgain:
        model_.wishAway(now());
        restingSince_ = now();
        break;
      case saver::ShowWish::Information:
        informs_ = !informs_;
        break;
      default:
        showsKeys_ = !showsKeys_;
        break;
    }
  }

  void compare() {
    if (testing::Test::HasFailure()) return;
    SCOPED_TRACE(told_.size() > 900 ? told_.substr(told_.size() - 900) : told_);
    const int present = model_.present();
    EXPECT_EQ(shown(), model_.shown());
    EXPECT_EQ(form().shownPath(), present == kNothing ? "" : support::KeyedShow::pathOf(present));
    EXPECT_EQ(form().ImageChangeTimer.enabled(), !model_.isHeld());
    EXPECT_EQ(!show_.notes("Keys").empty(), showsKeys_);
    std::vector<std::string> lines;
    if (informs_) lines = present == kNothing ? std::vector<std::string>{"No picture"} : linesOf(present);
    EXPECT_EQ(show_.notes("Information"), lines);
    EXPECT_TRUE(show_.stage.errors.empty());
    EXPECT_FALSE(show_.hasEnded());
  }
  std::vector<std::string> linesOf(int picture) const {
    std::vector<std::string> lines{std::to_string(picture) + ".jpg", "C:\\pictures"};
    if (model_.numberOf(picture) <= static_cast<int>(model_.left())) {
      lines.push_back(std::to_string(model_.numberOf(picture)) + " of " + std::to_string(model_.left()));
    }
    return lines;
  }

  // The picture in its box, which notes may cover; -1 for none.
  int shown() {
    const pictures::SharedPicture& picture = form().DisplayingPicture.picture();
    const base::SharedBitmap pixels = picture ? picture->drawnAt(picture->size()) : nullptr;
    if (!pixels || pixels->isEmpty()) return kNothing;
    for (int i = 0; i < pictures_; ++i) {
      if (pixels->at(0, 0) == base::OpaquePixel(support::KeyedShow::colorOf(i))) return i;
    }
    return kNothing;
  }

  void finish() {
    library::HiddenPictures hidden(show_.stage.files, {support::ShowStage::programFolder()});
    EXPECT_EQ(hidden.count(), model_.hidden());
    show_.press(kEscape);
    EXPECT_TRUE(show_.hasEnded());
    EXPECT_LE(show_.stage.loop.timersRunning(), ahead_ ? 2 : 1);
  }

  Random& random_;
  support::KeyedShow show_;
  int pictures_;
  bool pauses_;  // at each change, so that one of which nothing can be seen is not over in an instant
  std::set<int> gone_;
  Model model_;
  std::map<std::string, std::string> isSetTo_;
  bool ahead_ = false;
  State was_ = State::Resting;
  bool hasBegun_ = false;
  std::int64_t byHandUntil_ = 0;
  bool byHand_ = false;  // what happens now is in the model already
  std::int64_t restingSince_ = 0;
  std::string told_;  // what has been done, for whoever looks for the cause of a failure
  bool informs_ = false;
  bool showsKeys_ = false;
  int events_ = 0;
  int steps_ = 0;
  int inChanges_ = 0;
  int whileAwaiting_ = 0;
};

class ShowKeysMonkey : public testing::TestWithParam<int> {};

TEST_P(ShowKeysMonkey, KeysAtAnyMomentDoWhatASecondReadingOfThemDoes) {
  Random random(kSeed + static_cast<unsigned>(GetParam()));
  int events = 0;
  int steps = 0;
  int inChanges = 0;
  int whileAwaiting = 0;
  for (int number = 0; events < kEventsOfAPart && !HasFailure(); ++number) {
    SCOPED_TRACE("show " + std::to_string(number));
    MonkeyKeys monkey(random);
    monkey.run(std::min(kEventsOfAShow, kEventsOfAPart - events));
    events += monkey.events();
    steps += monkey.steps();
    inChanges += monkey.inChanges();
    whileAwaiting += monkey.whileAwaiting();
  }
  EXPECT_GT(steps, 500);
  EXPECT_GT(inChanges, 50);
  EXPECT_GT(whileAwaiting, 5);
}

INSTANTIATE_TEST_SUITE_P(InParts, ShowKeysMonkey, testing::Range(0, kParts));

}  // namespace
