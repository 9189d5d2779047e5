#include "pictures/jpeg_head.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "support/jpeg_builder.h"

namespace pictures {
namespace {

using support::ExifSegment;
using support::JpegHead;
using support::JpegSegmentBytes;

int OrientationOf(const std::string& head) { return static_cast<int>(ReadExifOrientation(head)); }

TEST(Exif, AllEightOrientationsAreReadInBothByteOrders) {
  for (const bool bigEndian : {false, true}) {
    for (int orientation = 1; orientation <= 8; ++orientation) {
      EXPECT_EQ(OrientationOf(JpegHead(ExifSegment(orientation, bigEndian), {64, 48})), orientation);
    }
  }
}

TEST(Exif, NumbersOutsideOneToEightMeanUpright) {
  for (const int orientation : {0, 9, 255, 256 * 6, 65535}) {
    for (const bool bigEndian : {false, true}) {
      EXPECT_EQ(OrientationOf(JpegHead(ExifSegment(orientation, bigEndian), {64, 48})), 1) << orientation;
    }
  }
}

TEST(Exif, OtherSegmentsMayComeFirst) {
  const std::string jfif = JpegSegmentBytes(0xE0, std::string("JFIF\0\1\1\0\0\1\0\1\0\0", 14));
  const std::string xmp = JpegSegmentBytes(0xE1, std::string("http://ns.adobe.com/xap/1.0/\0<x/>", 33));
  const std::string profile = JpegSegmentBytes(0xE2, std::string(60000, 'p'));
  EXPECT_EQ(OrientationOf(JpegHead(jfif + xmp + profile + ExifSegment(6, true), {64, 48})), 6);
}

TEST(Exif, FillBytesBeforeAMarkerAreSkipped) {
  EXPECT_EQ(OrientationOf(JpegHead("\xFF\xFF\xFF" + ExifSegment(8, false), {64, 48})), 8);
}

TEST(Exif, AFileWithoutExifIsUpright) {
  EXPECT_EQ(OrientationOf(JpegHead("", {64, 48})), 1);
  EXPECT_EQ(OrientationOf(""), 1);
  EXPECT_EQ(OrientationOf("GIF89a"), 1);
}

TEST(Exif, AnExifBlockAfterTheImageDataIsNotLookedAt) {
  EXPECT_EQ(OrientationOf(JpegHead("", {64, 48}) + ExifSegment(6, true)), 1);
}

TEST(Exif, TheOrientationOfTheThumbnailIsNotThePictures) {
  // First directory: no entry, the second one at 14: the thumbnail's orientation.
  std::string tiff("II\x2A\0\x08\0\0\0\0\0\x0E\0\0\0", 14);
  tiff += std::string("\1\0\x12\1\3\0\1\0\0\0\6\0\0\0\0\0\0\0", 18);
  EXPECT_EQ(OrientationOf(JpegHead(JpegSegmentBytes(0xE1, std::string("Exif\0\0", 6) + tiff), {64, 48})), 1);
}

// An Exif block with one entry for the orientation, of a type and with four value bytes of one's own choice.
std::string ExifWithEntry(char type, const std::string& value) {
  const std::string tiff = std::string("II\x2A\0\x08\0\0\0\1\0\x12\1", 12) + type +
                           std::string("\0\1\0\0\0", 5) + value + std::string(4, '\0');
  return JpegSegmentBytes(0xE1, std::string("Exif\0\0", 6) + tiff);
}

TEST(Exif, TheOrientationMayBeAByteAShortOrALong) {
  EXPECT_EQ(OrientationOf(JpegHead(ExifWithEntry(1, std::string("\6\xFF\xFF\xFF", 4)), {64, 48})), 6);
  EXPECT_EQ(OrientationOf(JpegHead(ExifWithEntry(3, std::string("\6\0\xFF\xFF", 4)), {64, 48})), 6);
  EXPECT_EQ(OrientationOf(JpegHead(ExifWithEntry(4, std::string("\6\0\0\0", 4)), {64, 48})), 6);
  EXPECT_EQ(OrientationOf(JpegHead(ExifWithEntry(4, std::string("\6\0\1\0", 4)), {64, 48})), 1);
  EXPECT_EQ(OrientationOf(JpegHead(ExifWithEntry(2, std::string("\6\0\0\0", 4)), {64, 48})), 1);
}

TEST(Exif, ABlockThatSaysNothingOfUseDoesNotHideALaterOne) {
  const std::string good = ExifSegment(6, true);
  const std::string name("Exif\0\0", 6);
  for (const std::string& first : {JpegSegmentBytes(0xE1, name), JpegSegmentBytes(0xE1, name + "garbage"),
                                   ExifWithEntry(3, std::string(4, '\0')), ExifWithEntry(7, "\6\0\0\0")}) {
    EXPECT_EQ(OrientationOf(JpegHead(first + good, {64, 48})), 6);
  }
  EXPECT_EQ(OrientationOf(JpegHead(ExifSegment(8, false) + good, {64, 48})), 8);  // the first good one counts
}

TEST(Exif, ATiffFilesOwnDirectoryIsRead) {
  const std::string exif = ExifSegment(5, true);
  EXPECT_EQ(OrientationOf(exif.substr(exif.find("MM"))), 5);
}

TEST(Exif, CutShortAnywhereItIsReadOrUpright) {
  for (const bool bigEndian : {false, true}) {
    const std::string whole = JpegHead(ExifSegment(6, bigEndian), {64, 48});
    for (std::size_t length = 0; length <= whole.size(); ++length) {
      // A copy of its own, so that a read beyond the end is caught.
      const std::string head(whole, 0, length);
      const int orientation = OrientationOf(head);
      EXPECT_TRUE(orientation == 1 || orientation == 6) << length;
    }
    EXPECT_EQ(OrientationOf(whole), 6);
  }
}

TEST(Exif, OffsetsAndCountsThatPointOutsideAreUpright) {
  const std::string whole = JpegHead(ExifSegment(6, false), {64, 48});
  const std::size_t tiff = whole.find("II");
  for (const std::size_t field : {tiff + 4, tiff + 10}) {  // offset of the directory, count of its entries
    std::string broken = whole;
    broken[field] = '\xFF';
    broken[field + 1] = '\xFF';
    const int orientation = OrientationOf(broken);
    EXPECT_TRUE(orientation == 1 || orientation == 6);
  }
  std::string farAway = whole;
  for (std::size_t i = 0; i < 4; ++i) farAway[tiff + 4 + i] = '\xFF';
  EXPECT_EQ(OrientationOf(farAway), 1);
}

TEST(Exif, AnyByteMayBeWrong) {
  const std::string whole = JpegHead(ExifSegment(5, true), {64, 48});
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (int value = 0; value < 256; ++value) {
      std::string broken = whole;
      broken[at] = static_cast<char>(value);
      const int orientation = OrientationOf(broken);
      ASSERT_GE(orientation, 1);
      ASSERT_LE(orientation, 8);
    }
  }
}

TEST(Exif, NoiseIsUprightOrAnOrientation) {
  std::uint32_t state = 1;
  for (int round = 0; round < 2000; ++round) {
    std::string noise = "\xFF\xD8\xFF\xE1";
    for (int i = 0; i < 90; ++i) noise += static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
    const int orientation = OrientationOf(noise);
    ASSERT_GE(orientation, 1);
    ASSERT_LE(orientation, 8);
  }
}

}  // namespace
}  // namespace pictures
