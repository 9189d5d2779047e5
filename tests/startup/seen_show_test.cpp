#include "startup/seen_show.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace startup {
namespace {

base::Bitmap Filled(base::Pixel pixel) { return base::Bitmap({40, 30}, pixel); }

TEST(SeenShow, WhatIsPutIsTakenOnceAndToldOnce) {
  SeenShow seen;
  EXPECT_TRUE(seen.put(
      {.play = 3, .isFirst = true, .areas = {}, .picture = {1, 2, 3, 4}, .shownPicture = "a"}, Filled(7)));
  EXPECT_FALSE(seen.put({.play = 3, .areas = {{0, 0, 2, 2}}, .shownPicture = "b"}, Filled(8)))
      << "the dialog has been told";
  int taken = 0;
  const auto see = [&](const ShowNews& news, const base::Bitmap& pixels) {
    ++taken;
    EXPECT_EQ(news.play, 3);
    EXPECT_TRUE(news.isFirst) << "its first picture has not been taken yet";
    EXPECT_EQ(news.shownPicture, "b");
    EXPECT_EQ(pixels.at(1, 1), 8U);
    EXPECT_EQ(pixels.at(2, 1), 7U);
  };
  seen.take(see);
  seen.take(see);
  EXPECT_EQ(taken, 1);
  EXPECT_TRUE(seen.put({.play = 3, .areas = {{5, 5, 1, 1}}}, Filled(9)));
  seen.take([&](const ShowNews& news, const base::Bitmap& pixels) {
    EXPECT_FALSE(news.isFirst);
    EXPECT_EQ(news.areas, (std::vector<base::PixelRect>{{5, 5, 1, 1}}));
    EXPECT_EQ(pixels.at(5, 5), 9U);
  });
}

TEST(SeenShow, ANewPlayTakesThePlaceOfWhatWasNotTaken) {
  SeenShow seen;
  seen.put({.play = 1, .isFirst = true}, Filled(7));
  seen.put({.play = 1, .areas = {{0, 0, 1, 1}}}, Filled(8));
  seen.put({.play = 2, .isFirst = true}, Filled(9));
  seen.take([&](const ShowNews& news, const base::Bitmap& pixels) {
    EXPECT_EQ(news.play, 2);
    EXPECT_EQ(news.areas, (std::vector<base::PixelRect>{{0, 0, 40, 30}}));
    EXPECT_EQ(pixels, Filled(9));
  });
}

TEST(SeenShow, ManyAreasBecomeTheWhole) {
  SeenShow seen;
  seen.put({.play = 1, .isFirst = true}, Filled(7));
  seen.take([](const ShowNews&, const base::Bitmap&) {});
  for (int i = 0; i < 200; ++i) seen.put({.play = 1, .areas = {{i % 40, 0, 1, 1}}}, Filled(8));
  seen.take([&](const ShowNews& news, const base::Bitmap&) { EXPECT_LE(news.areas.size(), 64U); });
}

TEST(SeenShow, ADialogThatIsSlowerThanTheShowSeesTheLastOfIt) {
  SeenShow seen;
  constexpr int kFrames = 5000;
  std::atomic<bool> isDone = false;
  std::thread show([&] {
    for (int i = 1; i <= kFrames; ++i) {
      const auto pixel = static_cast<base::Pixel>(i);
      seen.put({.play = 1, .isFirst = i == 1, .areas = {{0, 0, 40, 30}}, .shownPicture = std::to_string(i)},
               Filled(pixel));
    }
    isDone = true;
  });
  int last = 0;
  for (bool isLast = false; !isLast;) {
    isLast = isDone;
    seen.take([&](const ShowNews& news, const base::Bitmap& pixels) {
      const int now = static_cast<int>(pixels.at(39, 29));
      EXPECT_GT(now, last);
      EXPECT_EQ(news.shownPicture, std::to_string(now));
      EXPECT_EQ(pixels, Filled(static_cast<base::Pixel>(now))) << "never half of one";
      last = now;
    });
  }
  show.join();
  EXPECT_EQ(last, kFrames);
}

}  // namespace
}  // namespace startup
