#include "base/mix_light.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "support/channels.h"
#include "support/noise.h"

namespace base {
namespace {

using support::Channel;
using support::OpaqueNoise;

constexpr Pixel Grey(Pixel level) { return 0xFF000000U | level << 16 | level << 8 | level; }

TEST(MixLight, EveryWayOfDoingItGivesTheSamePixels) {
  for (int width = 1; width <= 37; ++width) {
    const Bitmap from = OpaqueNoise({width, 1}, static_cast<std::uint64_t>(width));
    const Bitmap to = OpaqueNoise({width, 1}, 1000 + static_cast<std::uint64_t>(width));
    for (int weight = 0; weight <= kWholeWeight; ++weight) {
      std::vector<Pixel> expected(static_cast<std::size_t>(width));
      MixLightLoops().back()(expected.data(), from.row(0), to.row(0), width, weight);
      for (const MixLightLoop loop : MixLightLoops()) {
        std::vector<Pixel> mixed(static_cast<std::size_t>(width));
        loop(mixed.data(), from.row(0), to.row(0), width, weight);
        ASSERT_EQ(mixed, expected) << "width " << width << ", weight " << weight;
      }
    }
  }
}

TEST(MixLight, EveryPairOfLevelsIsTheRootOfTheirMixedSquares) {
  const MixLightLoop mix = MixLightLoops().front();
  for (Pixel a = 0; a < 256; ++a) {
    std::vector<Pixel> from(256, Grey(a));
    std::vector<Pixel> to;
    for (Pixel b = 0; b < 256; ++b) to.push_back(Grey(b));
    for (const int weight : {0, 1, 63, 128, 200, 255, 256}) {
      std::vector<Pixel> mixed(256);
      mix(mixed.data(), from.data(), to.data(), 256, weight);
      for (Pixel b = 0; b < 256; ++b) {
        const double light = (a * a * (256.0 - weight) + b * b * static_cast<double>(weight)) / 256;
        ASSERT_NEAR(Channel(mixed[b], 1), std::sqrt(light), 0.5001);
        ASSERT_GE(Channel(mixed[b], 1), static_cast<int>(std::min(a, b)));
        ASSERT_LE(Channel(mixed[b], 1), static_cast<int>(std::max(a, b)));
        ASSERT_EQ(mixed[b], Grey(mixed[b] & 0xFF)) << "opaque, and every channel alike";
      }
    }
  }
}

TEST(MixLight, ItBeginsAndEndsWithThePicturesThemselves) {
  const Bitmap from = OpaqueNoise({19, 7}, 1);
  const Bitmap to = OpaqueNoise({19, 7}, 2);
  Bitmap target({19, 7});
  MixLight(target.view(), {0, 0}, from, to, PixelRect::ofSize(from.size()), 0);
  EXPECT_EQ(target, from);
  MixLight(target.view(), {0, 0}, from, to, PixelRect::ofSize(from.size()), kWholeWeight);
  EXPECT_EQ(target, to);
}

TEST(MixLight, HalfWayTheLightIsTheAverageOfBothPictures) {
  // Half the light of a white picture, where half its level would be a fifth of it.
  const Bitmap black({1, 1}, Grey(0));
  const Bitmap white({1, 1}, Grey(255));
  Bitmap target({1, 1});
  MixLight(target.view(), {0, 0}, black, white, {0, 0, 1, 1}, kWholeWeight / 2);
  EXPECT_EQ(target.at(0, 0), Grey(180));
}

TEST(MixLight, OnlyTheAreaIsTouchedAndPixelsKeepTheirPlace) {
  const Bitmap from = OpaqueNoise({10, 8}, 3);
  const Bitmap to = OpaqueNoise({10, 8}, 4);
  Bitmap target({20, 20}, Grey(1));
  const PixelRect area{7, 6, 5, 3};
  MixLight(target.view(), {4, 5}, from, to, area, kWholeWeight);
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 20; ++x) {
      EXPECT_EQ(target.at(x, y), area.contains({x, y}) ? to.at(x - 4, y - 5) : Grey(1)) << x << " " << y;
    }
  }
}

}  // namespace
}  // namespace base
