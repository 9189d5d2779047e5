#include "base/framed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "support/channels.h"
#include "support/noise.h"

namespace base {
namespace {

using support::Channel;
using support::Noise;
using support::OpaqueNoise;

Bitmap Drawn(const Bitmap& picture, const Frame& frame, PixelSize size, const FrameLoops& loops) {
  Bitmap drawn(size);
  FramedPicture(picture.size(), frame, size)
      .draw(drawn.view(), {0, 0}, picture, PixelRect::ofSize(size), loops);
  return drawn;
}

Bitmap Drawn(const Bitmap& picture, const Frame& frame, PixelSize size) {
  Bitmap drawn(size);
  FramedPicture(picture.size(), frame, size).draw(drawn.view(), {0, 0}, picture, PixelRect::ofSize(size));
  return drawn;
}

// A place in a picture by the four pixels around it, in floating point.
double LevelAt(const Bitmap& picture, double x, double y, int channel) {
  const double left = std::clamp(x, 0.0, picture.size().width - 1.0);
  const double top = std::clamp(y, 0.0, picture.size().height - 1.0);
  const int x0 = static_cast<int>(left);
  const int y0 = static_cast<int>(top);
  const int x1 = std::min(x0 + 1, picture.size().width - 1);
  const int y1 = std::min(y0 + 1, picture.size().height - 1);
  const auto level = [&](int px, int py) { return Channel(picture.at(px, py), channel); };
  const double upper = level(x0, y0) + (level(x1, y0) - level(x0, y0)) * (left - x0);
  const double lower = level(x0, y1) + (level(x1, y1) - level(x0, y1)) * (left - x0);
  return upper + (lower - upper) * (top - y0);
}

TEST(FramedPicture, AFrameOnWholePixelsIsACopy) {
  const Bitmap picture = OpaqueNoise({40, 30});
  const Bitmap drawn = Drawn(picture, {7, 3, 21, 17}, {21, 17});
  for (int y = 0; y < 17; ++y) {
    for (int x = 0; x < 21; ++x) ASSERT_EQ(drawn.at(x, y), picture.at(x + 7, y + 3));
  }
}

TEST(FramedPicture, EveryWayOfDoingItGivesTheSamePixels) {
  Noise noise;
  for (int i = 0; i < 300; ++i) {
    const PixelSize size{2 + noise.upTo(40), 2 + noise.upTo(30)};
    const Bitmap picture = OpaqueNoise(size, static_cast<std::uint64_t>(i));
    const Frame frame{noise.upTo(99) / 100.0, noise.upTo(99) / 100.0, size.width - 1 + noise.upTo(1) * 0.01,
                      size.height - 1.0};
    const PixelSize drawn{1 + noise.upTo(40), 1 + noise.upTo(30)};
    const Bitmap expected = Drawn(picture, frame, drawn, FrameLoopsHere().back());
    for (const FrameLoops& loops : FrameLoopsHere()) {
      ASSERT_EQ(Drawn(picture, frame, drawn, loops), expected) << "picture " << i;
    }
  }
}

TEST(FramedPicture, EveryPixelIsMixedFromTheFourAroundItsPlace) {
  const Bitmap picture = OpaqueNoise({50, 40});
  const Frame frame{2.37, 1.81, 43.2, 35.6};
  const PixelSize size{40, 33};
  const Bitmap drawn = Drawn(picture, frame, size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (int channel = 0; channel < 4; ++channel) {
        const double exact = LevelAt(picture, frame.left + (x + 0.5) * frame.width / size.width - 0.5,
                                     frame.top + (y + 0.5) * frame.height / size.height - 0.5, channel);
        // Half a level of rounding, and what 1/512 of a pixel in both directions makes between 0 and 255.
        ASSERT_NEAR(Channel(drawn.at(x, y), channel), exact, 0.5 + 2 * 255.0 / 512);
      }
    }
  }
}

TEST(FramedPicture, AQuarterOfAPixelIsSeen) {
  Bitmap edge({4, 2}, 0xFF000000);
  for (int y = 0; y < 2; ++y) edge.row(y)[2] = edge.row(y)[3] = 0xFFFFFFFF;
  const int still = Channel(Drawn(edge, {0, 0, 3, 2}, {3, 2}).at(1, 0), 0);
  const int moved = Channel(Drawn(edge, {0.25, 0, 3, 2}, {3, 2}).at(1, 0), 0);
  EXPECT_EQ(still, 0);
  EXPECT_NEAR(moved, 64, 1);
}

TEST(FramedPicture, APlainColourStaysWhatItIs) {
  for (const Pixel colour : {0xFFFFFFFFU, 0xFF000000U, 0xFF123456U}) {
    const Bitmap picture({23, 19}, colour);
    EXPECT_EQ(Drawn(picture, {0.3, 0.7, 21.1, 17.9}, {20, 16}), Bitmap({20, 16}, colour));
  }
}

TEST(FramedPicture, TheWholePictureReachesToItsBordersAndNotBeyond) {
  const Bitmap picture = OpaqueNoise({9, 7});
  const Bitmap drawn = Drawn(picture, {0, 0, 9, 7}, {18, 14});
  EXPECT_EQ(drawn.at(0, 0), picture.at(0, 0));
  EXPECT_EQ(drawn.at(17, 13), picture.at(8, 6));
}

TEST(FramedPicture, APartIsThePartOfTheWhole) {
  const Bitmap picture = OpaqueNoise({60, 50});
  const FramedPicture framed(picture.size(), {3.3, 2.2, 52.1, 44.4}, {48, 40});
  Bitmap whole({48, 40});
  framed.draw(whole.view(), {0, 0}, picture, {0, 0, 48, 40});
  Bitmap target({100, 90}, 0xFF010203);
  const PixelRect area{31, 27, 13, 9};
  framed.draw(target.view(), {20, 10}, picture, area);
  for (int y = 0; y < 90; ++y) {
    for (int x = 0; x < 100; ++x) {
      ASSERT_EQ(target.at(x, y), area.contains({x, y}) ? whole.at(x - 20, y - 10) : 0xFF010203U);
    }
  }
}

TEST(FramedPicture, LinesOfOnePixelAreDrawnToo) {
  for (const PixelSize size : {PixelSize{1, 9}, PixelSize{9, 1}, PixelSize{1, 1}}) {
    const Bitmap picture(size, 0xFF406080);
    const Frame whole{0, 0, static_cast<double>(size.width), static_cast<double>(size.height)};
    EXPECT_EQ(Drawn(picture, whole, {5, 6}), Bitmap({5, 6}, 0xFF406080));
  }
}

}  // namespace
}  // namespace base
