// A week of one show on screens that come and go.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "support/started_show.h"

namespace {

constexpr std::int64_t kHourMs = 3600 * 1000;
constexpr int kHours = 7 * 24;

class WeekOnSeveralScreens : public testing::TestWithParam<const char*>, protected support::StartedShow {
 protected:
  WeekOnSeveralScreens() : StartedShow({64, 48}) {}

  // Up to three further screens of any size, side by side at the right or left of the primary one.
  void plug() {
    const auto draw = [this](int low, int high) { return std::uniform_int_distribution(low, high)(random_); };
    stage.screen.others.clear();
    const int count = draw(0, 3);
    for (int i = 0; i < count; ++i) {
      const int place = draw(0, 1) == 0 ? 64 * (i + 1) : -64 * (i + 1);
      stage.screen.others.push_back({place, draw(-20, 20), draw(8, 64), draw(8, 64)});
    }
    window().onScreenChanged();
  }

  std::mt19937 random_{20261121};
};

TEST_P(WeekOnSeveralScreens, EndsByItsUserAloneAndKeepsNoTimerTooMany) {
  for (int i = 0; i < 7; ++i) stage.addPicture({24 + i, 27}, base::Rgb(9, 9, i), "Picture");
  for (const char* flag : {"bStandard", "bLeftWipe", "bCenter", "bHorizontalBlinds", "bFade"}) {
    stage.set(std::string("transitions/") + flag, "1");
  }
  stage.set("image/timeInterval", "300");
  stage.set("image/randomPick", "1");
  stage.set("extras/transitionTime", "300");
  stage.set("extras/loadAhead", "1");
  stage.set("extras/shuffle", "1");
  stage.set("extras/matchOrientation", "1");
  stage.set("extras/log", "1");
  stage.set("extras/otherScreens", GetParam());
  start();
  stage.runFor(kHourMs);
  const int timers = stage.loop.timersRunning();
  for (int hour = 0; hour < kHours && !hasEnded(); ++hour) {
    // Now and then in the middle of a change.
    stage.loop.postAfter(std::uniform_int_distribution(0, 900'000)(random_), [this] { plug(); });
    stage.runFor(kHourMs);
  }
  EXPECT_FALSE(hasEnded());
  EXPECT_EQ(stage.loop.timersRunning(), timers);
  EXPECT_GT(stage.pictures.opened.size(), 1500U);
  const std::string& log =
      stage.files.content[std::string(support::ShowStage::programFolder()) + "\\lumora.log"];
  EXPECT_EQ(log.find("ended by an error"), std::string::npos) << log;
  window().onKeyDown(65);
  EXPECT_TRUE(hasEnded());
  EXPECT_EQ(stage.loop.timersRunning(), 0);
}

INSTANTIATE_TEST_SUITE_P(Week, WeekOnSeveralScreens, testing::Values("same", "different", "span"));

}  // namespace
