#include "base/bitmap.h"

#include <gtest/gtest.h>

#include <vector>

namespace base {
namespace {

TEST(Premultiply, RoundsEveryColourAndAlphaExactly) {
  for (Pixel alpha = 0; alpha < 256; ++alpha) {
    for (Pixel level = 0; level < 256; ++level) {
      Pixel pixel = alpha << 24 | level << 16 | (255 - level) << 8 | level;
      Premultiply(&pixel, 1);
      const Pixel expected = (level * alpha * 2 + 255) / 510;
      const Pixel other = ((255 - level) * alpha * 2 + 255) / 510;
      ASSERT_EQ(pixel, alpha << 24 | expected << 16 | other << 8 | expected);
    }
  }
}

TEST(Premultiply, TellsWhetherAllAreOpaque) {
  std::vector<Pixel> pixels = {0xFF102030U, 0xFFFFFFFFU};
  EXPECT_TRUE(Premultiply(pixels.data(), pixels.size()));
  EXPECT_EQ(pixels, (std::vector<Pixel>{0xFF102030U, 0xFFFFFFFFU}));
  pixels.push_back(0xFE000000U);
  EXPECT_FALSE(Premultiply(pixels.data(), pixels.size()));
}

TEST(Premultiply, MakingOpaqueLeavesTheColours) {
  std::vector<Pixel> pixels = {0x00102030U, 0x7F000001U};
  MakeOpaque(pixels.data(), pixels.size());
  EXPECT_EQ(pixels, (std::vector<Pixel>{0xFF102030U, 0xFF000001U}));
}

}  // namespace
}  // namespace base
