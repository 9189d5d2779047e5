#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/show_stage.h"

namespace {

using support::kRed;
using support::ShowStage;

TEST(Floating, DriftsOnePixelATickAtItsSpeedAndKeepsItsDirectionAcrossAChange) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kRed);
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "5");
  show.set("image/timeInterval", "2");
  show.start();
  show.runFor(500);
  EXPECT_EQ(show.form->FloatTimer.interval(), 10);
  const float left = show.form->DisplayingPicture.left();
  const float top = show.form->DisplayingPicture.top();
  EXPECT_FLOAT_EQ(left, (1024 - 100) * 15 / 2) << "the first picture starts in the middle";
  show.runFor(100);
  const float dx = show.form->DisplayingPicture.left() - left;
  const float dy = show.form->DisplayingPicture.top() - top;
  EXPECT_FLOAT_EQ(std::abs(dx), 150);
  EXPECT_FLOAT_EQ(std::abs(dy), 150);
  show.runFor(1900 + 310);  // to the end of the next change
  const float after = show.form->DisplayingPicture.left();
  show.runFor(100);
  EXPECT_FLOAT_EQ(show.form->DisplayingPicture.left() - after, dx);
}

TEST(Floating, StandsStillWhileAChangeIsUnderWay) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kRed);
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "5");
  show.set("transitions/bLeftWipe", "1");
  show.set("extras/transitionTime", "1000");
  show.start();
  // The first change ends at 1500 ms; the second begins a second later and takes 2.3 seconds.
  std::vector<float> lefts;
  for (int at = 2600; at < 4700; at += 300) {
    show.loop.postAfter(at, [&] { lefts.push_back(show.form->DisplayingPicture.left()); });
  }
  show.runFor(5500);
  ASSERT_EQ(lefts.size(), 7U);
  EXPECT_EQ(lefts, std::vector<float>(7, lefts.front()));
  EXPECT_NE(show.form->DisplayingPicture.left(), lefts.front()) << "it drifts on after the change";
}

TEST(Floating, ASpeedThatIsNoneOfTheTableLeavesAHundredMilliseconds) {
  for (const char* speed : {"6", "-1", "", "fast", "2.5"}) {
    ShowStage show;
    show.addPicture({100, 80}, kRed);
    show.set("image/picRandom", "rand");
    show.set("image/picSpeed", speed);
    show.start();
    show.runFor(600);
    EXPECT_EQ(show.form->FloatTimer.interval(), 100) << speed;
    EXPECT_TRUE(show.errors.empty()) << speed;
  }
}

TEST(Floating, ALaterChangeBeginsWithOneMoreMove) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kRed);
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "2");
  show.set("image/timeInterval", "1.05");  // half way between two moves
  show.start();
  show.runFor(500 + 1049);
  const float left = show.form->DisplayingPicture.left();
  float retiring = 0;
  show.loop.postAfter(100, [&] { retiring = show.form->DisplayingPicture.left(); });
  show.runFor(101);
  EXPECT_FLOAT_EQ(std::abs(retiring - left), 15);
}

TEST(Floating, IsForEveryTextButCentInItsOwnLetters) {
  for (const char* text : {"Cent", "CENT", "rand", "centre", "0"}) {
    ShowStage show;
    show.addPicture({100, 80}, kRed);
    show.set("image/picRandom", text);
    show.start();
    show.runFor(600);
    EXPECT_TRUE(show.form->FloatTimer.enabled()) << text;
  }
}

TEST(Floating, IsNotForAnEmptyTextWhichIsTheDefault) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.set("image/picRandom", "");
  show.start();
  show.runFor(600);
  EXPECT_FALSE(show.form->FloatTimer.enabled());
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{462, 344, 100, 80}));
}

// What a picture is that gives the box no width, or hardly any.
struct Slip {
  const char* what;
  base::PixelSize size;
  const char* percent;
};

class FloatingWithoutAPicture : public testing::TestWithParam<Slip> {};

TEST_P(FloatingWithoutAPicture, NeverEndsTheShow) {
  for (const int dpi : {96, 120}) {
    ShowStage show({1024, 768}, dpi);
    if (GetParam().size.isEmpty()) {
      show.set("images/0", "C:\\gone.jpg");
      show.set("total/total", "1");
    } else {
      show.addPicture(GetParam().size, kRed);
    }
    show.set("image/picturePercent", GetParam().percent);
    show.set("image/picRandom", "rand");
    show.set("image/picSpeed", "5");
    show.start();
    show.runFor(500);
    const float left = show.form->DisplayingPicture.left();
    show.runFor(100);
    EXPECT_FLOAT_EQ(std::abs(show.form->DisplayingPicture.left() - left), dpi == 96 ? 150.0F : 120.0F);
    show.runFor(10000);
    EXPECT_EQ(show.errors, std::vector<std::string>{}) << GetParam().what;
    EXPECT_FALSE(show.form->isOver());
  }
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, FloatingWithoutAPicture,
    testing::Values(Slip{"a missing file", {}, "90"}, Slip{"a file missing at no size", {}, "0"},
                    Slip{"a line upright", {1, 5000}, "90"}, Slip{"a line lying", {5000, 1}, "90"},
                    Slip{"a dot", {1, 1}, "90"}, Slip{"no share of the screen", {300, 200}, "0"},
                    Slip{"no share of the screen, upright", {200, 300}, "0"},
                    Slip{"less than none", {300, 200}, "-10"}),
    [](const auto& slip) {
      std::string name = slip.param.what;
      std::erase_if(name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; });
      return name;
    });

TEST(Floating, APictureAfterAMissingOneStandsInTheMiddleOfNothingAndDrifts) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kRed);
  show.set("images/0", "C:\\gone.jpg");
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "5");
  show.start();
  show.runFor(500 + 1000 + 400);
  const base::PixelRect place = show.form->DisplayingPicture.pixelRect();
  EXPECT_EQ(place.size(), (base::PixelSize{100, 80}));
  EXPECT_TRUE(show.errors.empty());
  show.runFor(200);
  EXPECT_NE(show.form->DisplayingPicture.pixelRect(), place);
}

TEST(Floating, ACentredPictureNeverFloats) {
  ShowStage show;
  show.addPicture({100, 80}, kRed);
  show.addPicture({100, 80}, kRed);
  show.start();
  show.runFor(5000);
  EXPECT_FALSE(show.form->FloatTimer.enabled());
  EXPECT_EQ(show.form->FloatTimer.interval(), 100);
  EXPECT_EQ(show.form->DisplayingPicture.pixelRect(), (base::PixelRect{462, 344, 100, 80}));
}

TEST(Floating, StaysInsideTheScreenAndBelowTheCaptionBandForAQuarterOfAnHour) {
  ShowStage show({320, 240});
  show.addPicture({100, 80}, kRed, "Lake");
  show.addPicture({60, 90}, kRed);
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "5");
  show.set("image/timeInterval", "7");
  show.start();
  show.runFor(500);
  for (int i = 0; i < 9000; ++i) {
    show.runFor(100);
    const forms::PictureBox& box = show.form->DisplayingPicture;
    ASSERT_GE(box.left(), -15);
    ASSERT_GE(box.top(), show.form->captionHeight() - 15);
    ASSERT_LE(box.left() + box.width(), 320 * 15 + 15);
    ASSERT_LE(box.top() + box.height(), 240 * 15 + 15);
  }
}

}  // namespace
