#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "pictures/gif_first_frame.h"

namespace pictures {
namespace {

std::string Byte(int value) { return {static_cast<char>(static_cast<unsigned char>(value))}; }

std::string Table(int bits) { return std::string(std::size_t{3} << (bits + 1), '\x33'); }

const std::string kHeader("GIF89a\x05\0\x04\0\0\0\0", 13);
const std::string kFrame(",\1\0\2\0\3\0\1\0\0", 10);  // at 1, 2, of 3 x 1
const std::string kData("\2\2\x44\1\0;", 6);

// An extension with one sub-block.
std::string Extension(int label, const std::string& block) {
  return "!" + Byte(label) + Byte(static_cast<int>(block.size())) + block + Byte(0);
}

std::string Control(int flags, int index) {
  return Extension(0xF9, Byte(flags) + std::string("\x0A\x14", 2) + Byte(index));
}

// The frame behind these blocks.
std::optional<GifFrameBlock> FrameBehind(const std::string& blocks) {
  static std::string file;  // the frame's colours lie in it
  file = kHeader + blocks + kFrame + kData;
  return FindFirstGifFrame(file);
}

TEST(GifBlocks, AFrameIsFoundWithItsPlace) {
  const auto frame = FrameBehind("");
  ASSERT_TRUE(frame);
  EXPECT_EQ(frame->screen, (base::PixelSize{5, 4}));
  EXPECT_EQ(frame->place, (base::PixelRect{1, 2, 3, 1}));
  EXPECT_EQ(frame->data, kHeader.size() + kFrame.size());
  EXPECT_EQ(frame->transparentIndex, std::nullopt);
}

TEST(GifBlocks, OnlyAGraphicControlSaysWhichIndexIsTransparent) {
  const std::string looksLikeOne = Byte(1) + std::string("\0\0", 2) + Byte(9);
  for (int label = 0; label <= 255; ++label) {
    const auto frame = FrameBehind(Extension(label, looksLikeOne));
    ASSERT_TRUE(frame) << label;
    EXPECT_EQ(frame->transparentIndex, label == 0xF9 ? std::optional<std::uint8_t>(9) : std::nullopt)
        << label;
    if (label == 0xF9) continue;
    EXPECT_EQ(FrameBehind(Control(1, 7) + Extension(label, looksLikeOne))->transparentIndex, 7) << label;
    const std::string withoutFlag = Byte(0) + std::string("\0\0", 2) + Byte(9);
    EXPECT_EQ(FrameBehind(Control(1, 7) + Extension(label, withoutFlag))->transparentIndex, 7) << label;
  }
}

TEST(GifBlocks, TheLowestFlagOfAGraphicControlSaysThatThereIsATransparentIndex) {
  for (int flags = 0; flags <= 255; ++flags) {
    const auto frame = FrameBehind(Control(flags, 200));
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->transparentIndex, flags % 2 == 1 ? std::optional<std::uint8_t>(200) : std::nullopt)
        << flags;
  }
}

TEST(GifBlocks, TheLastGraphicControlBeforeTheFrameCounts) {
  EXPECT_EQ(FrameBehind(Control(1, 3) + Control(1, 4))->transparentIndex, 4);
  EXPECT_EQ(FrameBehind(Control(1, 3) + Control(0, 4))->transparentIndex, std::nullopt);
  EXPECT_EQ(FrameBehind(Control(0, 3) + Control(1, 4))->transparentIndex, 4);
}

TEST(GifBlocks, AGraphicControlOfLessThanFourBytesSaysNothing) {
  for (std::size_t length = 1; length <= 6; ++length) {
    const std::string block = std::string("\1\0\0\x09\0\0", 6).substr(0, length);
    const auto frame = FrameBehind(Extension(0xF9, block));
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->transparentIndex.has_value(), length >= 4) << length;
    EXPECT_EQ(FrameBehind(Control(1, 5) + Extension(0xF9, block))->transparentIndex, length >= 4 ? 9 : 5);
  }
}

TEST(GifBlocks, OfSeveralSubBlocksInAGraphicControlTheLastCounts) {
  const std::string two = std::string("!\xF9\4\1\0\0\x03\4\1\0\0\x06\0", 13);
  EXPECT_EQ(FrameBehind(two)->transparentIndex, 6);
}

TEST(GifBlocks, AnExtensionEndsWithItsEmptySubBlock) {
  const std::string comment = std::string("!\xFE\3abc\1d\0", 9);
  EXPECT_TRUE(FrameBehind(comment + comment));
  EXPECT_TRUE(FrameBehind(std::string("!\xFE\0", 3))) << "without any other";
  // Without its end it takes what follows for sub-blocks, and the frame is gone.
  EXPECT_FALSE(FrameBehind(std::string("!\xFE\3abc\xFFz", 7)));
  std::string file = std::string("\3abc\2de\0\1f", 10);
  std::size_t at = 0;
  EXPECT_EQ(NextGifSubBlock(file, at), "abc");
  EXPECT_EQ(NextGifSubBlock(file, at), "de");
  EXPECT_EQ(NextGifSubBlock(file, at), std::nullopt);
  EXPECT_EQ(at, 8U) << "behind the empty one";
  EXPECT_EQ(NextGifSubBlock(file, at), "f");
  EXPECT_EQ(NextGifSubBlock(file, at), std::nullopt);
}

TEST(GifBlocks, OnlyExtensionsAndZerosMayStandBeforeTheFrame) {
  for (int kind = 0; kind <= 255; ++kind) {
    if (kind == '!' || kind == ',') continue;
    // What follows would be a whole extension, were this its beginning.
    EXPECT_EQ(FrameBehind(Byte(kind) + std::string("\xFE\1x\0", 4)).has_value(), false) << kind;
    EXPECT_EQ(FrameBehind(Byte(kind)).has_value(), kind == 0) << kind;
    EXPECT_EQ(FrameBehind(Byte(kind) + Byte(0) + Byte(0)).has_value(), kind == 0) << kind;
  }
}

TEST(GifBlocks, TablesOfEverySizeAreRead) {
  for (int bits = 0; bits < 8; ++bits) {
    for (const int otherFlags : {0, 0x78}) {
      std::string header = kHeader;
      header[10] = static_cast<char>(0x80 | otherFlags | bits);
      const std::string file = header + Table(bits) + kFrame + kData;
      const auto frame = FindFirstGifFrame(file);
      ASSERT_TRUE(frame) << bits;
      EXPECT_EQ(frame->colors, Table(bits));
      EXPECT_EQ(frame->data, 13 + Table(bits).size() + 10);
      EXPECT_FALSE(frame->interlaced);
    }
  }
}

TEST(GifBlocks, WithoutItsFlagThereIsNoTable) {
  for (int flags = 0; flags < 0x80; ++flags) {
    std::string header = kHeader;
    header[10] = static_cast<char>(flags);
    const std::string file = header + kFrame + kData;
    const auto frame = FindFirstGifFrame(file);
    ASSERT_TRUE(frame) << flags;
    EXPECT_EQ(frame->colors, "");
  }
}

TEST(GifBlocks, AFramesFlagsSayWhetherItHasATableAndWhetherItIsInterlaced) {
  std::string header = kHeader;
  header[10] = '\x80';
  const std::string global("\1\2\3\4\5\6");
  for (int flags = 0; flags <= 255; ++flags) {
    std::string description = kFrame;
    description[9] = static_cast<char>(flags);
    const std::string local = flags >= 0x80 ? Table(flags % 8) : "";
    const std::string file = header + global + description + local + kData;
    const auto frame = FindFirstGifFrame(file);
    ASSERT_TRUE(frame) << flags;
    EXPECT_EQ(frame->interlaced, flags / 0x40 % 2 == 1) << flags;
    EXPECT_EQ(frame->colors, flags >= 0x80 ? local : global) << flags;
    EXPECT_EQ(frame->data, header.size() + global.size() + description.size() + local.size()) << flags;
  }
}

TEST(GifBlocks, ATableThatIsCutShortDescribesNoFrame) {
  std::string header = kHeader;
  header[10] = '\x80';
  EXPECT_FALSE(FindFirstGifFrame(header + std::string(5, '\0')));
  std::string description = kFrame;
  description[9] = '\x80';
  const std::string whole = kHeader + description + std::string(6, '\0');
  EXPECT_TRUE(FindFirstGifFrame(whole));
  EXPECT_FALSE(FindFirstGifFrame(whole.substr(0, whole.size() - 1)));
}

TEST(GifBlocks, AFileOfEitherVersionIsRead) {
  for (const char* version : {"GIF87a", "GIF89a"}) {
    EXPECT_TRUE(FindFirstGifFrame(version + kHeader.substr(6) + kFrame)) << version;
  }
  for (const char* version : {"GIF88a", "GIF87b", "GIF90a", "gif89a", "GIF89A", "GIF8 a"}) {
    EXPECT_FALSE(FindFirstGifFrame(version + kHeader.substr(6) + kFrame)) << version;
  }
}

TEST(GifBlocks, AFrameWithoutWidthOrHeightIsNone) {
  for (const std::size_t side : {5U, 7U}) {
    std::string description = kFrame;
    description[side] = '\0';
    EXPECT_FALSE(FindFirstGifFrame(kHeader + description + kData)) << side;
  }
}

}  // namespace
}  // namespace pictures
