// A million random events of the input watch against a second reading of its rules.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "startup/input_watch.h"

namespace {

using startup::PointedControl;
using startup::WatchedControl;

// The rules once more, told as a history: which positions were written down, and which moves have counted
// since the count last began.
class Model {
 public:
  Model(bool asksPassword, double threshold) : asksPassword_(asksPassword), threshold_(threshold) {}

  // Letters of what happens: "c" the cursor is shown, "x" the exit is called.
  std::string move(int handler, float x, float y, std::pair<int, int> screen, float time) {
    std::vector<std::array<long, 2>>& places = places_.at(static_cast<std::size_t>(handler));
    bool counts = false;
    if (!places.empty() && screens_.back() != screen) {
      const auto [oldX, oldY] = places.back();
      if (oldX >= 1 && oldY >= 1) {
        const float wayX = x - static_cast<float>(oldX);
        const float wayY = y - static_cast<float>(oldY);
        counts = wayX > 3 || wayX < -3 || wayY > 3 || wayY < -3;
      }
    }
    places.push_back({std::lrint(x), std::lrint(y)});
    screens_.push_back(screen);
    return counts ? count(time) : "";
  }

  void rebase(int handler, float x, float y) {
    auto& places = places_.at(static_cast<std::size_t>(handler));
    if (!places.empty()) places.push_back({std::lrint(x), std::lrint(y)});
  }

  std::size_t counted() const { return counted_.size(); }

 private:
  std::string count(float time) {
    counted_.push_back(time);
    if (static_cast<double>(counted_.size()) == threshold_) {
      if (!asksPassword_) return "cx";
      counted_.clear();
      return "x";
    }
    if (!opened_) {
      // A time that rounds to the stroke of midnight cannot be told from none at all.
      if (std::lrint(time) != 0) opened_ = std::lrint(time);
    } else if (time > static_cast<float>(*opened_) + 2.0F) {
      opened_.reset();
      counted_.clear();
    }
    return "";
  }

  bool asksPassword_;
  double threshold_;
  std::array<std::vector<std::array<long, 2>>, 2> places_;
  std::vector<std::pair<int, int>> screens_;
  std::vector<float> counted_;
  std::optional<long> opened_;
};

// A user with a restless hand, in front of a screen whose picture wanders about, comes and goes.
class Session {
 public:
  explicit Session(std::uint32_t seed)
      : random_(seed),
        asks_(pick(2) == 1),
        threshold_(std::array{1.0, 2.0, 7.0, 28.0, 30.0, 6.5}.at(static_cast<std::size_t>(pick(6)))),
        model_(asks_, threshold_),
        watch_(facts(), threshold_, {[this] { happened_ += "c"; }, [this] { happened_ += "x"; }}),
        scaleX_(pick(2) ? 15.0F : 12.0F),
        scaleY_(pick(2) ? scaleX_ : 256.0F / 1080.0F),
        time_(pick(3) == 0 ? 86'390.0 : pick(80'000)) {}

  void run(int events) {
    for (int i = 0; i < events && !testing::Test::HasFailure(); ++i) {
      passTime();
      if (pick(4) == 0) {
        moveControls();
      } else {
        movePointer();
        sendMove();
      }
      ASSERT_EQ(static_cast<std::size_t>(watch_.moveCount()), model_.counted()) << "event " << i;
    }
  }

  int exits() const { return exits_; }

 private:
  int pick(int below) { return static_cast<int>(random_() % static_cast<std::uint32_t>(below)); }

  os::SystemFacts facts() const {
    os::SystemFacts facts;
    facts.osPlatformId = asks_ ? 1 : 2;
    facts.usePassword = 1;
    return facts;
  }

  void passTime() {
    time_ += pick(50) == 0 ? pick(4) : pick(100) / 1000.0;
    if (time_ >= 86'400) time_ -= 86'400;
  }

  void movePointer() {
    const int reach = std::array{0, 1, 3, 4, 5, 40, 600}.at(static_cast<std::size_t>(pick(7)));
    x_ = std::clamp(x_ + pick(2 * reach + 1) - reach, 0, 3839);
    y_ = std::clamp(y_ + pick(2 * reach + 1) - reach, 0, 2159);
  }

  // What is under a place of the screen, and where in it. The picture works in pixels, the form in its scale.
  PointedControl controlAt(int x, int y) const {
    const int inX = x - left_;
    const int inY = y - top_;
    if (pictureShown_ && inX >= 0 && inX < 640 && inY >= 0 && inY < 480) {
      return {WatchedControl::DisplayingPicture, static_cast<float>(inX), static_cast<float>(inY)};
    }
    return {WatchedControl::Form, static_cast<float>(x) * scaleX_, static_cast<float>(y) * scaleY_};
  }

  void moveControls() {
    if (pick(5) == 0) pictureShown_ = !pictureShown_;
    left_ += pick(15) - 7;
    top_ += pick(15) - 7;
    if (pick(20) == 0) {
      left_ = pick(3000);
      top_ = pick(1500);
    }
    if (pick(6) == 0) return;  // nobody tells the watch
    watch_.controlsMoved([this](base::PixelPoint p) { return controlAt(p.x, p.y); });
    if (!seen_) return;
    const PointedControl under = controlAt(seen_->first, seen_->second);
    model_.rebase(under.control == WatchedControl::Form ? 0 : 1, under.x, under.y);
  }

  void sendMove() {
    const PointedControl under = controlAt(x_, y_);
    // A fraction now and then, as a form's own scale gives them.
    const float x = pick(10) == 0 ? under.x + 0.5F : under.x;
    const float now = static_cast<float>(time_);
    happened_.clear();
    const startup::MouseMove move{x, under.y, {x_, y_}, now};
    const bool isForm = under.control == WatchedControl::Form;
    isForm ? watch_.Form_MouseMove(move) : watch_.DisplayingPicture_MouseMove(move);
    seen_ = {x_, y_};
    const std::string expected = model_.move(isForm ? 0 : 1, x, under.y, {x_, y_}, now);
    ASSERT_EQ(happened_, expected);
    exits_ += happened_.ends_with("x") ? 1 : 0;
  }

  std::mt19937 random_;
  bool asks_;
  double threshold_;
  Model model_;
  startup::InputWatch watch_;
  float scaleX_;
  float scaleY_;
  double time_;
  std::string happened_;
  std::optional<std::pair<int, int>> seen_;
  int x_ = 1920;
  int y_ = 1080;
  int left_ = 1700;
  int top_ = 900;
  bool pictureShown_ = true;
  int exits_ = 0;
};

}  // namespace

TEST(InputWatchAtRandom, AgreesWithASecondReadingOfItsRulesOnAMillionRandomEvents) {
  int exits = 0;
  for (std::uint32_t seed = 1; seed <= 3000 && !HasFailure(); ++seed) {
    Session session(seed);
    session.run(400);
    exits += session.exits();
  }
  EXPECT_GT(exits, 1000) << "the events are to lead somewhere";
}
