// The show with loadAhead=1: the next picture is made ready while the present one stands.
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <random>
#include <vector>

#include "saver/picture_size.h"
#include "support/colors.h"
#include "support/show_stage.h"

namespace saver {
namespace {

using support::kBlue;
using support::kGreen;
using support::kRed;

class Form1Ahead : public testing::Test {
 protected:
  Form1Ahead() {
    show.set("extras/loadAhead", "1");
    show.addPicture({400, 300}, kRed);
    show.addPicture({400, 300}, kGreen);
    show.addPicture({400, 300}, kBlue);
  }

  void loadingTakes(std::optional<int> ms) {
    show.workers.delayMs = [ms] { return ms; };
  }
  base::Pixel middle() const { return show.screenAt(512, 384); }

  // What stands in the middle of the screen at some milliseconds from now, in their order. A change that
  // waits for its picture waits inside a handler, so the screen is looked at from an event.
  std::vector<base::Pixel> middlesAt(const std::vector<std::int64_t>& moments) {
    const auto seen = std::make_shared<std::vector<base::Pixel>>();
    for (const std::int64_t moment : moments) {
      show.loop.postAfter(moment, [this, seen] { seen->push_back(middle()); });
    }
    show.runFor(moments.back() + 1);
    return *seen;
  }

  support::ShowStage show;
};

TEST_F(Form1Ahead, WithoutTheKeyNothingIsLoadedBesideTheThread) {
  show.drop("extras/loadAhead");
  show.start();
  show.runFor(5000);
  EXPECT_EQ(show.workers.made, 0);
  EXPECT_EQ(show.pictures.opened.size(), 4U);  // at 0.5, 1.5, 2.8 and 4.1 seconds
}

TEST_F(Form1Ahead, TheFirstPictureIsMadeReadyBeforeItsTime) {
  show.start();
  show.runFor(490);
  EXPECT_EQ(show.pictures.drawnSizes, (std::vector<base::PixelSize>{{400, 300}}));
  EXPECT_EQ(middle(), base::OpaquePixel(0));
  show.runFor(30);
  EXPECT_EQ(middle(), base::OpaquePixel(kRed));
}

TEST_F(Form1Ahead, EachPictureIsDrawnOnceBesideTheThreadAndShownInItsTurn) {
  show.start();
  for (const base::PackedColor color : {kRed, kGreen, kBlue, kRed}) {
    show.runFor(color == kRed && show.pictures.opened.size() < 2 ? 700 : 1300);
    EXPECT_EQ(middle(), base::OpaquePixel(color));
  }
  EXPECT_EQ(show.pictures.opened.size(), show.pictures.drawnSizes.size());
  EXPECT_EQ(show.workers.jobs, static_cast<int>(show.pictures.opened.size()));
}

TEST_F(Form1Ahead, OnePictureIsReadyAheadAndNoMore) {
  show.start();
  show.runFor(900);
  EXPECT_EQ(show.pictures.opened.size(), 2U);
}

TEST_F(Form1Ahead, TheFirstPictureMayComeLateAndTheBackgroundStandsMeanwhile) {
  loadingTakes(4000);
  show.start();
  EXPECT_EQ(middlesAt({3900, 4100}),
            (std::vector<base::Pixel>{base::OpaquePixel(0), base::OpaquePixel(kRed)}));
}

TEST_F(Form1Ahead, TheOldPictureStandsUntilTheNewOneIsReady) {
  show.start();
  show.runFor(700);  // the second picture is ready
  loadingTakes(3000);
  // The third one is begun at 1.8 seconds, due at 2.8 and ready at 4.8.
  EXPECT_EQ(middlesAt({2000, 4000, 4500}),
            (std::vector<base::Pixel>{base::OpaquePixel(kGreen), base::OpaquePixel(kGreen),
                                      base::OpaquePixel(kBlue)}));
}

TEST_F(Form1Ahead, TheOldPictureAndItsCaptionFollowTheScreenWhileTheNewOneIsAwaited) {
  show.set("caption/0", "A caption");
  int jobs = 0;
  show.workers.delayMs = [&] { return std::optional(++jobs == 1 ? 20 : 5000); };
  show.start();
  base::PixelRect picture;
  float captionMiddle = 0;
  show.loop.postAfter(2500, [&] {  // the second one has been due for a second
    show.screen.size = {640, 480};
    show.form->ScreenChanged();
    picture = show.form->DisplayingPicture.pixelRect();
    captionMiddle = show.form->Label1.left() + show.form->Label1.width() / 2;
    EXPECT_TRUE(show.form->DisplayingPicture.visible());
    EXPECT_TRUE(show.form->Label1.visible());
    EXPECT_EQ(show.screenAt(320, 240), base::OpaquePixel(kRed));
  });
  show.runFor(2600);
  EXPECT_EQ(picture, (base::PixelRect{120, 90, 400, 300}));
  EXPECT_NEAR(captionMiddle, 320 * 15, 8);
  show.runFor(10'000);
  EXPECT_TRUE(show.errors.empty());
  EXPECT_EQ(show.pictures.drawnSizes[1], (base::PixelSize{400, 300}));
}

TEST_F(Form1Ahead, TheOldPictureFloatsOnWhileTheNewOneIsAwaited) {
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "3");
  int jobs = 0;
  show.workers.delayMs = [&] { return std::optional(++jobs == 1 ? 20 : 5000); };
  show.start();
  std::vector<float> lefts;
  for (const std::int64_t moment : {2500, 3500}) {
    show.loop.postAfter(moment, [&] { lefts.push_back(show.form->DisplayingPicture.left()); });
  }
  show.runFor(3600);
  ASSERT_EQ(lefts.size(), 2U);
  EXPECT_NE(lefts[0], lefts[1]);
}

TEST_F(Form1Ahead, APictureThatHangsIsPassedOverAndTheShowGoesOn) {
  int jobs = 0;
  show.workers.delayMs = [&] { return ++jobs == 2 ? std::nullopt : std::optional(20); };
  show.start();
  // The second picture is begun at 0.5 seconds and given up at 10.5; its turn lasts for one second.
  EXPECT_EQ(
      middlesAt({10'400, 11'000, 12'300}),
      (std::vector<base::Pixel>{base::OpaquePixel(kRed), base::OpaquePixel(0), base::OpaquePixel(kBlue)}));
  EXPECT_TRUE(show.errors.empty());
}

TEST_F(Form1Ahead, TheShowEndsAtOnceWhileItWaitsForAPicture) {
  loadingTakes(std::nullopt);
  show.start();
  show.runFor(800);
  const std::int64_t before = show.clock.tickMs();
  show.loop.postAfter(50, [&] { show.loop.quit(); });
  show.runFor(100'000);
  EXPECT_LE(show.clock.tickMs() - before, 60);
  EXPECT_TRUE(show.errors.empty());
}

TEST_F(Form1Ahead, APictureThatCannotBeReadIsPassedOver) {
  show.set("images/1", "C:\\pictures\\missing.jpg");
  show.start();
  show.runFor(1000);
  EXPECT_EQ(middle(), base::OpaquePixel(kRed));
  show.runFor(1300);
  EXPECT_EQ(middle(), base::OpaquePixel(0));
  show.runFor(1300);
  EXPECT_EQ(middle(), base::OpaquePixel(kBlue));
}

TEST_F(Form1Ahead, AfterAChangeOfTheScreenThePictureIsFittedWithoutItsFileAndTheNextOneIsMadeReadyAnew) {
  show.addPicture({4000, 3000}, kRed);
  show.set("images/0", "C:\\pictures\\3.jpg");
  show.start();
  show.runFor(900);
  const auto opened = show.pictures.opened.size();
  show.screen.size = {800, 600};
  show.form->ScreenChanged();
  EXPECT_EQ(show.pictures.opened.size(), opened);
  EXPECT_LE(show.form->DisplayingPicture.pixelRect().width, 800);
  EXPECT_GT(show.form->DisplayingPicture.pixelRect().width, 700);
  show.runFor(50);
  EXPECT_EQ(show.pictures.opened.size(), opened + 1);
}

TEST_F(Form1Ahead, ACustomBackgroundComesWhenItIsReady) {
  show.pictures.add("sky.bmp", {16, 12}, kBlue);
  show.set("background/backEffect", "2");
  show.set("background/backgroundImage", "sky.bmp");
  show.set("background/backgroundDisplay", "1");
  loadingTakes(100);
  show.start();
  EXPECT_EQ(show.screenAt(2, 2), base::OpaquePixel(0));
  show.runFor(110);
  EXPECT_EQ(show.screenAt(2, 2), base::OpaquePixel(kBlue));
  show.runFor(600);
  EXPECT_EQ(middle(), base::OpaquePixel(kRed));
}

TEST_F(Form1Ahead, APictureIsMadeReadyAtTheSizeAtWhichItWillBeShown) {
  std::mt19937 random(7);
  const auto below = [&](unsigned bound) { return static_cast<int>(random() % bound); };
  constexpr int kDpi[] = {96, 120, 144, 192};
  for (int round = 0; round < 60; ++round) {
    const base::PixelSize screen{320 + below(1700), 200 + below(1100)};
    support::ShowStage other(screen, kDpi[below(4)]);
    other.set("extras/loadAhead", "1");
    other.set("image/picturePercent", std::to_string(1 + below(100)));
    // Every fourth one is so narrow that a side is shown as one pixel.
    const base::PixelSize size{1 + below(round % 4 == 0 ? 10 : 5000), 1 + below(5000)};
    other.addPicture(size, kRed);
    other.start();
    other.runFor(530);
    ASSERT_EQ(other.errors, std::vector<std::string>());
    ASSERT_FALSE(other.pictures.drawnSizes.empty());
    EXPECT_EQ(other.pictures.drawnSizes[0], other.form->DisplayingPicture.pixelRect().size())
        << size.width << "x" << size.height << " on " << screen.width << "x" << screen.height;
  }
}

}  // namespace
}  // namespace saver
