#include "pictures/gif_first_frame.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

#include "support/colors.h"
#include "support/gif_builder.h"

namespace pictures {
namespace {

using support::GifBuilder;
using support::GifCodes;
using support::kBlackPixel;
using support::kBluePixel;
using support::kGreenPixel;
using support::kRedPixel;

const std::string kColors("\xFF\0\0\0\xFF\0\0\0\xFF\xFF\xFF\xFF", 12);  // red, green, blue, white

GifBuilder Gif(int width, int height, std::vector<std::uint8_t> indices) {
  GifBuilder gif;
  gif.screen = {width, height};
  gif.frame = {0, 0, width, height};
  gif.globalColors = kColors;
  gif.indices = std::move(indices);
  return gif;
}

std::vector<std::vector<base::Pixel>> Rows(const GifFirstFrame& frame) {
  std::vector<std::vector<base::Pixel>> rows;
  for (int y = 0; y < frame.size().height; ++y) {
    rows.emplace_back(static_cast<std::size_t>(frame.size().width), 0xDEADBEEFU);
    frame.row(y, rows.back().data());
  }
  return rows;
}

using Picture = std::vector<std::vector<base::Pixel>>;

TEST(GifFirstFrame, AWholeFrameShowsItsColours) {
  const auto frame = GifFirstFrame::decode(Gif(3, 2, {0, 1, 2, 2, 1, 0}).file());
  ASSERT_TRUE(frame);
  EXPECT_EQ(frame->size(), (base::PixelSize{3, 2}));
  EXPECT_EQ(Rows(*frame),
            (Picture{{kRedPixel, kGreenPixel, kBluePixel}, {kBluePixel, kGreenPixel, kRedPixel}}));
  EXPECT_FALSE(frame->mayBeTransparent());
}

TEST(GifFirstFrame, TheColoursOfTheFrameGoBeforeThoseOfTheFile) {
  GifBuilder gif = Gif(2, 1, {0, 1});
  gif.localColors = std::string("\1\2\3\4\5\6", 6);
  EXPECT_EQ(Rows(*GifFirstFrame::decode(gif.file())), (Picture{{0xFF010203U, 0xFF040506U}}));
}

TEST(GifFirstFrame, AnIndexBeyondTheTableIsBlack) {
  EXPECT_EQ(Rows(*GifFirstFrame::decode(Gif(2, 1, {200, 0}).file())), (Picture{{kBlackPixel, kRedPixel}}));
}

TEST(GifFirstFrame, AFileWithoutColoursIsGrey) {
  GifBuilder gif = Gif(2, 1, {0, 200});
  gif.globalColors.clear();
  EXPECT_EQ(Rows(*GifFirstFrame::decode(gif.file())), (Picture{{kBlackPixel, 0xFFC8C8C8U}}));
}

TEST(GifFirstFrame, AFrameAtAnOffsetLeavesTheScreenAroundItTransparent) {
  GifBuilder gif = Gif(4, 3, {0, 1});
  gif.frame = {1, 1, 2, 1};
  const auto frame = GifFirstFrame::decode(gif.file());
  EXPECT_EQ(Rows(*frame), (Picture{{0, 0, 0, 0}, {0, kRedPixel, kGreenPixel, 0}, {0, 0, 0, 0}}));
  EXPECT_TRUE(frame->mayBeTransparent());
}

TEST(GifFirstFrame, TheTransparentIndexIsTransparent) {
  GifBuilder gif = Gif(3, 1, {0, 1, 2});
  gif.transparentIndex = 1;
  const auto frame = GifFirstFrame::decode(gif.file());
  EXPECT_EQ(Rows(*frame), (Picture{{kRedPixel, 0, kBluePixel}}));
  EXPECT_TRUE(frame->mayBeTransparent());
}

TEST(GifFirstFrame, EveryIndexMayBeTheTransparentOne) {
  for (int index = 0; index <= 255; ++index) {
    const auto one = static_cast<std::uint8_t>(index);
    GifBuilder gif = Gif(2, 1, {one, static_cast<std::uint8_t>(255 - index)});
    gif.globalColors.clear();
    gif.transparentIndex = one;
    const base::Pixel other = 0xFF000000U | static_cast<base::Pixel>(255 - index) * 0x10101U;
    ASSERT_EQ(Rows(*GifFirstFrame::decode(gif.file())), (Picture{{0, other}})) << index;
  }
}

// The order in which the standard lists the rows of an interlaced frame.
std::vector<int> InterlacedOrder(int height) {
  std::vector<int> order;
  for (int y = 0; y < height; y += 8) order.push_back(y);
  for (int y = 4; y < height; y += 8) order.push_back(y);
  for (int y = 2; y < height; y += 4) order.push_back(y);
  for (int y = 1; y < height; y += 2) order.push_back(y);
  return order;
}

TEST(GifFirstFrame, InterlacedRowsComeToTheirPlaces) {
  for (int height = 1; height <= 40; ++height) {
    std::vector<std::uint8_t> indices;
    for (const int y : InterlacedOrder(height)) indices.push_back(static_cast<std::uint8_t>(y));
    GifBuilder gif = Gif(1, height, indices);
    gif.globalColors.clear();
    gif.interlaced = true;
    const auto rows = Rows(*GifFirstFrame::decode(gif.file()));
    for (int y = 0; y < height; ++y) {
      ASSERT_EQ(rows[static_cast<std::size_t>(y)][0] & 0xFF, static_cast<base::Pixel>(y)) << height;
    }
  }
}

TEST(GifFirstFrame, AnInterlacedFrameCutShortLeavesTheMissingRowsTransparent) {
  GifBuilder gif = Gif(1, 8, {0, 1, 2});
  gif.interlaced = true;
  EXPECT_EQ(Rows(*GifFirstFrame::decode(gif.file())),
            (Picture{{kRedPixel}, {0}, {kBluePixel}, {0}, {kGreenPixel}, {0}, {0}, {0}}));
}

TEST(GifFirstFrame, OnlyTheFirstFrameOfAnAnimationIsShown) {
  GifBuilder first = Gif(2, 1, {0, 0});
  GifBuilder second = Gif(2, 1, {2, 2});
  std::string file = first.file();
  file.pop_back();  // the trailer
  file += second.beforeData().substr(13 + kColors.size()) + second.data();
  EXPECT_EQ(Rows(*GifFirstFrame::decode(file)), (Picture{{kRedPixel, kRedPixel}}));
}

TEST(GifFirstFrame, CommentsAndPaddingBeforeTheFrameAreSkipped) {
  const std::string whole = Gif(1, 1, {1}).file();
  const std::size_t image = 13 + kColors.size();
  const std::string extras = std::string("\0\x21\xFE\5hello\3you\0\x21\xFF\x0BNETSCAPE2.0\3\1\0\0\0", 33);
  const auto frame = GifFirstFrame::decode(whole.substr(0, image) + extras + whole.substr(image));
  ASSERT_TRUE(frame);
  EXPECT_EQ(Rows(*frame), (Picture{{kGreenPixel}}));
}

TEST(GifFirstFrame, AFrameLargerThanItsScreenMakesTheScreenLarger) {
  GifBuilder gif = Gif(0, 0, {0, 1, 2, 3, 0, 1});
  gif.frame = {0, 0, 3, 2};
  EXPECT_EQ(GifFirstFrame::decode(gif.file())->size(), (base::PixelSize{3, 2}));
  gif.screen = {2, 5};
  EXPECT_EQ(GifFirstFrame::decode(gif.file())->size(), (base::PixelSize{3, 5}));
}

TEST(GifFirstFrame, AFrameWithoutAreaIsNoPicture) {
  GifBuilder gif = Gif(4, 4, {0});
  gif.frame = {0, 0, 0, 4};
  EXPECT_FALSE(GifFirstFrame::decode(gif.file()));
}

TEST(GifFirstFrame, StringsThatAreMadeWhileTheyAreUsedAreDecoded) {
  // 1, then code 258 which is being made (1 1), then 259 (1 1 1), then 258 again.
  const std::string file = Gif(8, 1, {}).beforeData() + GifCodes({256, 1, 258, 259, 258, 257}) + ";";
  EXPECT_EQ(Rows(*GifFirstFrame::decode(file)), (Picture{std::vector<base::Pixel>(8, kGreenPixel)}));
}

TEST(GifFirstFrame, ABadCodeKeepsWhatCameBefore) {
  const std::string file = Gif(4, 1, {}).beforeData() + GifCodes({256, 0, 1, 400, 2, 2}) + ";";
  EXPECT_EQ(Rows(*GifFirstFrame::decode(file)), (Picture{{kRedPixel, kGreenPixel, 0, 0}}));
}

TEST(GifFirstFrame, ABadFirstCodeLeavesNothing) {
  EXPECT_FALSE(GifFirstFrame::decode(Gif(4, 1, {}).beforeData() + GifCodes({256, 258, 1}) + ";"));
  EXPECT_FALSE(GifFirstFrame::decode(Gif(4, 1, {}).beforeData() + GifCodes({256, 257}) + ";"));
}

TEST(GifFirstFrame, CodesForMorePixelsThanTheFrameHasAreIgnored) {
  EXPECT_EQ(Rows(*GifFirstFrame::decode(Gif(2, 1, {0, 1, 2, 2, 2}).file())),
            (Picture{{kRedPixel, kGreenPixel}}));
}

TEST(GifFirstFrame, ACodeSizeThatCannotBeIsNoPicture) {
  for (const char size : {'\0', '\x0C', '\xFF'}) {
    EXPECT_FALSE(GifFirstFrame::decode(Gif(2, 1, {}).beforeData() + size + std::string("\2\x44\1\0;", 5)));
  }
}

TEST(GifFirstFrame, CodesOfEverySizeThatCanBeAreDecoded) {
  for (int size = 1; size <= 11; ++size) {
    // The clear code and then index 1, in one bit more than the size, low bits first.
    const unsigned codes = 1U << size | 1U << (size + 1);
    std::string data = {static_cast<char>(size), 4};
    for (int i = 0; i < 4; ++i)
      data += static_cast<char>(static_cast<unsigned char>(codes >> (8 * i) & 0xFF));
    const auto frame = GifFirstFrame::decode(Gif(1, 1, {}).beforeData() + data + std::string("\0;", 2));
    ASSERT_TRUE(frame) << size;
    EXPECT_EQ(Rows(*frame), (Picture{{kGreenPixel}})) << size;
  }
}

// A code for each index and none to clear the table, which grows by a string with each code but the first,
// and the codes by a bit whenever it has as many strings as they can tell apart; up to 12 bits.
std::string GrowingCodes(int size, const std::vector<std::uint8_t>& indices) {
  std::string packed;
  unsigned bits = 0;
  int count = 0;
  int width = size + 1;
  const auto add = [&](unsigned code) {
    bits |= code << count;
    for (count += width; count >= 8; count -= 8, bits >>= 8) {
      packed += static_cast<char>(static_cast<unsigned char>(bits & 0xFF));
    }
  };
  add(1U << size);
  int strings = (1 << size) + 2;
  for (std::size_t i = 0; i < indices.size(); ++i) {
    add(indices[i]);
    if (i > 0) ++strings;
    if (strings == 1 << width && width < 12) ++width;
  }
  add((1U << size) + 1);
  packed += static_cast<char>(static_cast<unsigned char>(bits & 0xFF));
  std::string data(1, static_cast<char>(size));
  for (std::size_t at = 0; at < packed.size(); at += 255) {
    const std::string block = packed.substr(at, 255);
    data += static_cast<char>(static_cast<unsigned char>(block.size())) + block;
  }
  return data + '\0' + ';';
}

TEST(GifFirstFrame, CodesGrowWithTheTableUntilItIsFull) {
  for (const int size : {2, 3, 8}) {
    std::vector<std::uint8_t> indices(5000);
    for (std::size_t i = 0; i < indices.size(); ++i) indices[i] = static_cast<std::uint8_t>(i * i % 7 % 4);
    GifBuilder gif = Gif(5000, 1, {});
    const auto rows = Rows(*GifFirstFrame::decode(gif.beforeData() + GrowingCodes(size, indices)));
    for (std::size_t i = 0; i < indices.size(); ++i) {
      const base::Pixel colors[] = {kRedPixel, kGreenPixel, kBluePixel, 0xFFFFFFFFU};
      ASSERT_EQ(rows[0][i], colors[indices[i]]) << i << " of size " << size;
    }
  }
}

TEST(GifFirstFrame, TheSmallestCodesAreDecoded) {
  // Code size 2: clear (4), 1, 2, end (5) in three bits each, low bits first: 100 001 010 101.
  const std::string data = std::string("\2\2\x8C\x0A\0;", 6);
  EXPECT_EQ(Rows(*GifFirstFrame::decode(Gif(2, 1, {}).beforeData() + data)),
            (Picture{{kGreenPixel, kBluePixel}}));
}

TEST(GifFirstFrame, CutShortAnywhereItKeepsTheFirstPixelsOrNothing) {
  std::vector<std::uint8_t> indices(600);
  std::iota(indices.begin(), indices.end(), std::uint8_t{0});
  for (std::uint8_t& index : indices) index %= 4;
  const std::string whole = Gif(30, 20, indices).file();
  const Picture full = Rows(*GifFirstFrame::decode(whole));
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const std::string cut(whole, 0, length);
    const auto frame = GifFirstFrame::decode(cut);
    if (!frame) continue;
    ASSERT_EQ(frame->size(), (base::PixelSize{30, 20}));
    const Picture rows = Rows(*frame);
    for (std::size_t y = 0; y < rows.size(); ++y) {
      for (std::size_t x = 0; x < rows[y].size(); ++x) {
        ASSERT_TRUE(rows[y][x] == full[y][x] || rows[y][x] == 0) << length;
      }
    }
  }
}

TEST(GifFirstFrame, AnyByteMayBeWrong) {
  GifBuilder gif = Gif(5, 5, std::vector<std::uint8_t>(25, 1));
  gif.transparentIndex = 2;
  const std::string whole = gif.file();
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (int value = 0; value < 256; ++value) {
      std::string broken = whole;
      broken[at] = static_cast<char>(value);
      const auto frame = GifFirstFrame::decode(broken);
      if (!frame) continue;
      std::vector<base::Pixel> row(static_cast<std::size_t>(frame->size().width));
      frame->row(0, row.data());
      frame->row(frame->size().height - 1, row.data());
    }
  }
}

TEST(GifFirstFrame, AHugeClaimIsRefusedAndALargeOneCostsOnlyWhatTheFileHolds) {
  GifBuilder huge = Gif(65535, 65535, {1, 2});
  EXPECT_FALSE(GifFirstFrame::decode(huge.file()));
  EXPECT_FALSE(GifFirstFrame::decode(Gif(13378, 13378, {1, 2}).file()));  // 1 GiB at six bytes a pixel
  GifBuilder large = Gif(13377, 13377, {1, 2});
  const auto frame = GifFirstFrame::decode(large.file());
  ASSERT_TRUE(frame);
  std::vector<base::Pixel> row(13377);
  frame->row(0, row.data());
  EXPECT_EQ(row[1], kBluePixel);
  EXPECT_EQ(row[2], 0U);
  EXPECT_TRUE(frame->mayBeTransparent());
}

TEST(GifFirstFrame, TheSizeIsReadAsSoonAsTheFrameIsDescribed) {
  const std::string before = Gif(7, 6, {}).beforeData();
  EXPECT_EQ(ReadGifSize(before), (base::PixelSize{7, 6}));
  EXPECT_FALSE(ReadGifSize(before.substr(0, before.size() - 1)));
}

}  // namespace
}  // namespace pictures
