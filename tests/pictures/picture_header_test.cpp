#include "pictures/picture_header.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

#include "support/gif_builder.h"
#include "support/jpeg_builder.h"

namespace pictures {
namespace {

std::string BitmapHead(const std::string& info) { return "BM" + std::string(12, '\0') + info; }

TEST(PictureHeader, ABitmapTellsItsSize) {
  const auto header = ReadPictureHeader(BitmapHead(std::string("\x28\0\0\0\x80\2\0\0\xE0\1\0\0", 12)));
  ASSERT_TRUE(header);
  EXPECT_EQ(header->kind, PictureKind::Bitmap);
  EXPECT_EQ(header->size, (base::PixelSize{640, 480}));
}

TEST(PictureHeader, ABitmapWithItsTopRowFirstHasANegativeHeight) {
  const auto header = ReadPictureHeader(BitmapHead(std::string("\x28\0\0\0\x80\2\0\0\x20\xFE\xFF\xFF", 12)));
  EXPECT_EQ(header->size, (base::PixelSize{640, 480}));
}

TEST(PictureHeader, TheOldestBitmapsHaveSixteenBitSizes) {
  const auto header = ReadPictureHeader(BitmapHead(std::string("\x0C\0\0\0\x40\1\xC8\0", 8)));
  EXPECT_EQ(header->size, (base::PixelSize{320, 200}));
}

TEST(PictureHeader, ABitmapsSizeStandsInEveryInfoThatCanHoldIt) {
  const auto sizeOf = [](int infoSize) {
    return ReadPictureHeader(
               BitmapHead(static_cast<char>(infoSize) + std::string("\0\0\0\x80\2\0\0\xE0\1\0\0", 11)))
        ->size;
  };
  for (const int infoSize : {0, 1, 11, 13, 14, 15}) EXPECT_EQ(sizeOf(infoSize), std::nullopt) << infoSize;
  for (const int infoSize : {16, 17, 40, 64, 108, 124}) {
    EXPECT_EQ(sizeOf(infoSize), (base::PixelSize{640, 480})) << infoSize;
  }
}

TEST(PictureHeader, ABitmapWithoutASizeHasNone) {
  for (const std::string& info :
       {std::string("\x28\0\0\0\0\0\0\0\xE0\1\0\0", 12), std::string("\x28\0\0\0\x80\2\0\0\0\0\0\x80", 12),
        std::string("\x28\0\0\0\0\0\0\x80\xE0\1\0\0", 12), std::string("\x28\0\0", 3), std::string()}) {
    const auto header = ReadPictureHeader(BitmapHead(info));
    ASSERT_TRUE(header);
    EXPECT_FALSE(header->size);
  }
}

TEST(PictureHeader, AJpegTellsItsSizeBehindOtherSegments) {
  const auto header = ReadPictureHeader(support::JpegHead(
      support::ExifSegment(6, true) + support::JpegSegmentBytes(0xC4, "tables"), {4000, 3000}));
  ASSERT_TRUE(header);
  EXPECT_EQ(header->kind, PictureKind::Jpeg);
  EXPECT_EQ(header->size, (base::PixelSize{4000, 3000}));
}

TEST(PictureHeader, AFrameOfEveryProcessTellsAJpegsSizeAndItsTablesDoNot) {
  const std::string other("\x08\0\x11\0\x12\1\1\x11\0", 9);  // 18 x 17
  for (int marker = 0xC0; marker <= 0xCF; ++marker) {
    const bool isFrame = marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
    const auto header = ReadPictureHeader(
        support::JpegHead(support::JpegSegmentBytes(static_cast<std::uint8_t>(marker), other), {64, 48}));
    ASSERT_TRUE(header);
    EXPECT_EQ(header->size, isFrame ? (base::PixelSize{18, 17}) : (base::PixelSize{64, 48})) << marker;
  }
}

TEST(PictureHeader, AJpegCutShortBeforeItsFrameHasNoSizeYet) {
  const std::string whole =
      support::JpegHead(support::JpegSegmentBytes(0xE2, std::string(5000, 'p')), {64, 48});
  for (const std::size_t length : {std::size_t{3}, std::size_t{1000}, whole.size() - 12}) {
    const auto header = ReadPictureHeader(whole.substr(0, length));
    ASSERT_TRUE(header) << length;
    EXPECT_FALSE(header->size) << length;
  }
}

TEST(PictureHeader, APngTellsItsSize) {
  const std::string png("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0\4\0\0\0\3\0", 24);
  const auto header = ReadPictureHeader(png);
  ASSERT_TRUE(header);
  EXPECT_EQ(header->kind, PictureKind::Png);
  EXPECT_EQ(header->size, (base::PixelSize{1024, 768}));
  EXPECT_FALSE(ReadPictureHeader(png.substr(0, 23))->size);
  std::string another = png;
  another.replace(12, 4, "IDAT");
  EXPECT_FALSE(ReadPictureHeader(another)->size) << "its first chunk is no header";
}

TEST(PictureHeader, AGifTellsItsSize) {
  support::GifBuilder gif;
  gif.screen = {320, 200};
  gif.frame = {10, 10, 20, 20};
  const auto header = ReadPictureHeader(gif.file());
  ASSERT_TRUE(header);
  EXPECT_EQ(header->kind, PictureKind::Gif);
  EXPECT_EQ(header->size, (base::PixelSize{320, 200}));
}

TEST(PictureHeader, APixelTakesAsManyBytesAsADecoderMayHoldOfIt) {
  const auto png = [](char depth) {
    return std::string("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0\4\0\0\0\3\0", 24) + depth;
  };
  EXPECT_EQ(ReadPictureHeader(png(8))->bytesPerPixel, 4);
  EXPECT_EQ(ReadPictureHeader(png(16))->bytesPerPixel, 8);
  EXPECT_EQ(ReadPictureHeader("GIF89a")->bytesPerPixel, 6);
  EXPECT_EQ(ReadPictureHeader("BM")->bytesPerPixel, 4);
}

TEST(PictureHeader, AJpegThatIsGatheredBeforeItsFirstRowTakesMoreBytes) {
  const auto jpeg = [](std::uint8_t process, char components, char inFirstScan) {
    const std::string frame = std::string("\x08\0\x30\0\x40", 5) + components + std::string(3 * 4, '\1');
    return "\xFF\xD8" + support::JpegSegmentBytes(process, frame) +
           support::JpegSegmentBytes(0xC4, "tables") +
           support::JpegSegmentBytes(0xDA, std::string(1, inFirstScan) + std::string(11, '\1'));
  };
  EXPECT_EQ(ReadPictureHeader(jpeg(0xC0, 3, 3))->bytesPerPixel, 4);
  EXPECT_EQ(ReadPictureHeader(jpeg(0xC1, 4, 4))->bytesPerPixel, 4);
  EXPECT_EQ(ReadPictureHeader(jpeg(0xC0, 3, 1))->bytesPerPixel, 9) << "a scan for each component";
  EXPECT_EQ(ReadPictureHeader(jpeg(0xC2, 1, 1))->bytesPerPixel, 4);
  EXPECT_EQ(ReadPictureHeader(jpeg(0xC2, 3, 3))->bytesPerPixel, 9);
  EXPECT_EQ(ReadPictureHeader(jpeg(0xC2, 4, 4))->bytesPerPixel, 12);
  const std::string whole = jpeg(0xC0, 3, 3);
  EXPECT_EQ(ReadPictureHeader(whole.substr(0, whole.size() - 14))->bytesPerPixel, 9)
      << "its scan is not in sight";
  EXPECT_EQ(ReadPictureHeader(whole.substr(0, whole.size() - 14))->size, (base::PixelSize{64, 48}));
}

TEST(PictureHeader, EverythingElseIsNoPicture) {
  for (const std::string& bytes :
       {std::string(), std::string("B"), std::string("GIF88a"), std::string("\xFF\xD8"),
        std::string("PK\3\4"), std::string("<svg/>"), std::string(100, '\0')}) {
    EXPECT_FALSE(ReadPictureHeader(bytes));
  }
}

}  // namespace
}  // namespace pictures
