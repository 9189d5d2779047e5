// Long shows with loadAhead=1 on a clock turned by hand: what they hold does not grow.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "support/show_stage.h"

namespace saver {
namespace {

constexpr base::PixelSize kScreen{32, 24};

// Pictures of many sizes, of which those that are still held anywhere are known.
class CountedPictures final : public pictures::PictureLoader {
 public:
  pictures::SharedPicture open(const std::string& path) override {
    ++opened;
    return std::make_shared<Counted>(*this, 40 + (static_cast<int>(path.size()) * 37 + path.back()) % 300);
  }

  std::size_t held() {
    std::erase_if(drawn_, [](const auto& bitmap) { return bitmap.expired(); });
    return drawn_.size();
  }

  int opened = 0;
  long long largest = 0;  // pixels that were drawn at once

 private:
  class Counted final : public pictures::Picture {
   public:
    Counted(CountedPictures& all, int width) : all_(all), width_(width) {}
    base::PixelSize size() const override { return {width_, 60}; }
    base::SharedBitmap drawnAt(base::PixelSize size) const override {
      auto drawn = std::make_shared<base::Bitmap>(size, base::OpaquePixel(base::Rgb(1, 2, 3)));
      all_.drawn_.push_back(drawn);
      all_.largest = std::max(all_.largest, base::PixelRect::ofSize(size).area());
      return drawn;
    }

   private:
    CountedPictures& all_;
    int width_;
  };

  std::vector<std::weak_ptr<base::Bitmap>> drawn_;
};

void AddEffects(support::ShowStage& show) {
  for (const char* flag : {"bStandard", "bLeftWipe", "bRightWipe", "bRightandLeftWipe", "bUpAndDown",
                           "bCenter", "bHorizontalBlinds", "bVerticalBlinds", "bFade"}) {
    show.set(std::string("transitions/") + flag, "1");
  }
}

TEST(LongShowAhead, ThousandsOfChangesHoldThePresentPictureTheNextOneAndOneThatCameLate) {
  std::mt19937 random(20261121);
  const auto below = [&](unsigned bound) { return static_cast<int>(random() % bound); };
  support::ShowStage show(kScreen);
  CountedPictures counted;
  show.pictures.others = &counted;
  show.set("extras/loadAhead", "1");
  show.set("image/timeInterval", "2");
  for (int i = 0; i < 40; ++i) {
    show.set("images/" + std::to_string(i),
             "C:\\many\\" + std::string(static_cast<std::size_t>(i), 'x') + ".jpg");
  }
  show.set("total/total", "40");
  // Some come after their turn, and a few not before somebody lets them.
  show.workers.delayMs = [&] {
    const int kind = below(50);
    if (kind == 0) return std::optional<int>();
    return std::optional<int>(kind < 4 ? 1000 + below(14'000) : below(300));
  };
  constexpr int kChanges = 6000;
  std::size_t most = 0;
  int changes = 0;
  int index = -1;
  show.loop.afterEach = [&] {
    if (show.form->currentImageIndex() == index) return;
    index = show.form->currentImageIndex();
    ++changes;
    if (below(60) == 0) show.workers.comeBack();
    most = std::max(most, counted.held());
  };
  show.start();
  while (changes < kChanges && !show.form->isOver()) show.runFor(60'000);
  EXPECT_FALSE(show.form->isOver());
  EXPECT_GT(counted.opened, kChanges * 3 / 4);
  EXPECT_LE(most, 3U) << "the present one, the next one, and one that came late";
  EXPECT_LE(counted.largest, 2 * base::PixelRect::ofSize(kScreen).area()) << "at shown size";
  EXPECT_LE(show.workers.alive, 9);
  show.form->unload();
  EXPECT_LE(counted.held(), 3U);
}

TEST(LongShowAhead, AWeekLeavesNoTimerAndNoErrorBehindWhateverTheLook) {
  for (const char* change : {"", "crossfade", "direct"}) {
    support::ShowStage show(kScreen);
    for (int i = 0; i < 5; ++i) show.addPicture({24, 20}, base::Rgb(9, 9, i), "Picture");
    AddEffects(show);
    show.set("extras/loadAhead", "1");
    show.set("extras/fit", "fill");
    show.set("extras/surround", "blur");
    show.set("extras/change", change);
    show.set("extras/transitionTime", "300");
    show.set("image/timeInterval", "1200");
    show.set("image/randomPick", "1");
    show.start();
    show.runFor(3600 * 1000);
    const int timers = show.loop.timersRunning();
    show.runFor(7 * 24LL * 3600 * 1000);
    EXPECT_EQ(show.errors, std::vector<std::string>()) << change;
    EXPECT_EQ(show.loop.timersRunning(), timers) << change;
    EXPECT_GT(show.pictures.opened.size(), 500U) << change;
    EXPECT_EQ(show.workers.made, 1) << change;
  }
}

TEST(LongShowAhead, PicturesGlideForLongOnOneTimer) {
  support::ShowStage show(kScreen);
  for (int i = 0; i < 5; ++i) show.addPicture({90, 80}, base::Rgb(9, 9, i), "");
  show.set("extras/loadAhead", "1");
  show.set("extras/fit", "fill");
  show.set("extras/panZoom", "8");
  show.set("extras/change", "crossfade");
  show.set("image/timeInterval", "5");
  show.start();
  show.runFor(30'000);
  const int timers = show.loop.timersRunning();
  show.runFor(900 * 1000);
  EXPECT_EQ(show.errors, std::vector<std::string>());
  EXPECT_LE(show.loop.timersRunning(), timers + 1);
  EXPECT_GT(show.pictures.opened.size(), 100U);
}

}  // namespace
}  // namespace saver
