#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "pictures/jpeg_head.h"
#include "support/jpeg_builder.h"

namespace pictures {
namespace {

using support::ExifSegment;
using support::JpegSegmentBytes;

using Segments = std::vector<std::pair<int, std::string>>;  // marker and content

// Of a file with these bytes behind the start of its image.
Segments SegmentsOf(const std::string& behindStart) {
  const std::string file = "\xFF\xD8" + behindStart;
  JpegSegments segments(file);
  Segments found;
  while (const auto segment = segments.next()) {
    found.emplace_back(segment->marker, std::string(segment->content));
  }
  return found;
}

const std::string kFirst = JpegSegmentBytes(0xE0, "first");
const std::string kSecond = JpegSegmentBytes(0xFE, "second");
const Segments kBoth = {{0xE0, "first"}, {0xFE, "second"}};
const Segments kFirstAlone = {{0xE0, "first"}};

TEST(JpegSegments, ComeOneAfterTheOther) { EXPECT_EQ(SegmentsOf(kFirst + kSecond), kBoth); }

TEST(JpegSegments, EndWithTheHeadOfTheFirstScan) {
  const std::string scan = JpegSegmentBytes(0xDA, "scan");
  const Segments expected = {{0xE0, "first"}, {0xDA, "scan"}};
  EXPECT_EQ(SegmentsOf(kFirst + scan), expected);
  EXPECT_EQ(SegmentsOf(kFirst + scan + kSecond), expected) << "without one compressed byte between";
  EXPECT_EQ(SegmentsOf(kFirst + scan + std::string("\x12\xFF\0\x34\xFF\xD9", 6) + kSecond), expected);
}

TEST(JpegSegments, AnyNumberOfFillBytesMayStandBeforeAMarker) {
  for (std::size_t count = 1; count <= 9; ++count) {
    EXPECT_EQ(SegmentsOf(kFirst + std::string(count, '\xFF') + kSecond), kBoth) << count;
  }
}

TEST(JpegSegments, MarkersWithoutALengthArePassedOver) {
  for (const int marker : {0x01, 0xD0, 0xD1, 0xD2, 0xD3, 0xD4, 0xD5, 0xD6, 0xD7, 0xD8}) {
    const std::string alone = "\xFF" + std::string(1, static_cast<char>(marker));
    EXPECT_EQ(SegmentsOf(kFirst + alone + kSecond), kBoth) << marker;
    EXPECT_EQ(SegmentsOf(alone + alone + kFirst + "\xFF" + alone + kSecond), kBoth) << marker;
  }
}

TEST(JpegSegments, EveryOtherMarkerHasALength) {
  for (int marker = 0x02; marker <= 0xFE; ++marker) {
    if ((marker >= 0xD0 && marker <= 0xDA)) continue;
    const std::string segment = JpegSegmentBytes(static_cast<std::uint8_t>(marker), "content");
    EXPECT_EQ(SegmentsOf(segment + kFirst), (Segments{{marker, "content"}, {0xE0, "first"}})) << marker;
  }
}

TEST(JpegSegments, EndAtWhatIsNoMarker) {
  for (const std::string& other : {std::string("\xFF\0", 2), std::string("\xFF\xD9"), std::string("\0", 1),
                                   std::string("\xFE"), std::string("\xFF"), std::string()}) {
    EXPECT_EQ(SegmentsOf(kFirst + other + (other.empty() || other == "\xFF" ? "" : kSecond)), kFirstAlone);
  }
}

TEST(JpegSegments, ALengthCountsItselfOrEndsThem) {
  EXPECT_EQ(SegmentsOf(std::string("\xFF\xE1\0\2", 4) + kFirst), (Segments{{0xE1, ""}, {0xE0, "first"}}));
  for (const char length : {'\0', '\1'}) {
    const std::string broken = std::string("\xFF\xE1\0", 3) + length;
    EXPECT_EQ(SegmentsOf(kFirst + broken + kSecond), kFirstAlone);
    EXPECT_EQ(SegmentsOf(kFirst + broken), kFirstAlone);
    // One byte further there would be a segment again.
    EXPECT_EQ(SegmentsOf(kFirst + broken + 'x' + kSecond), kFirstAlone);
  }
}

TEST(JpegSegments, AreAsLongAsALengthCanSay) {
  const std::string longest(65533, 'p');
  EXPECT_EQ(SegmentsOf(JpegSegmentBytes(0xE2, longest) + kFirst),
            (Segments{{0xE2, longest}, {0xE0, "first"}}));
}

TEST(JpegSegments, AreCutShortWhereTheBytesEnd) {
  for (std::size_t kept = 0; kept <= 5; ++kept) {
    const std::string file = kFirst.substr(0, 4 + kept);
    EXPECT_EQ(SegmentsOf(file), (Segments{{0xE0, std::string("first").substr(0, kept)}}));
  }
  for (std::size_t kept = 0; kept < 4; ++kept) EXPECT_EQ(SegmentsOf(kFirst.substr(0, kept)), Segments());
}

int OrientationIn(const std::string& segments) {
  return static_cast<int>(ReadExifOrientation(support::JpegHead(segments, {64, 48})));
}

// A block of entries that each give the orientation as a SHORT of this value.
std::string BlockOf(const std::string& orientations) {
  std::string tiff("II\x2A\0\x08\0\0\0", 8);
  tiff += static_cast<char>(orientations.size());
  tiff += '\0';
  for (const char orientation : orientations) {
    tiff += std::string("\x12\1\3\0\1\0\0\0", 8) + orientation + std::string(3, '\0');
  }
  return tiff;
}

TEST(ExifBlock, TheFirstEntryThatSaysAnOrientationCounts) {
  const auto orientationOf = [](const std::string& orientations) {
    return OrientationIn(JpegSegmentBytes(0xE1, std::string("Exif\0\0", 6) + BlockOf(orientations)));
  };
  EXPECT_EQ(orientationOf("\6\3"), 6);
  EXPECT_EQ(orientationOf("\x09\3"), 3) << "what is no orientation hides none";
  EXPECT_EQ(orientationOf(std::string("\0\0\x08\2", 4)), 8);
  EXPECT_EQ(orientationOf(std::string(200, '\x09') + '\5'), 5);
  EXPECT_EQ(orientationOf(""), 1);
}

TEST(ExifBlock, StandsInASegmentOfItsKindBehindItsWholeName) {
  const std::string block = BlockOf("\6");
  EXPECT_EQ(OrientationIn(JpegSegmentBytes(0xE1, std::string("Exif\0\0", 6) + block)), 6);
  for (const int marker : {0xE0, 0xE2, 0xED, 0xEF, 0xFE, 0xC1, 0x61}) {
    EXPECT_EQ(OrientationIn(
                  JpegSegmentBytes(static_cast<std::uint8_t>(marker), std::string("Exif\0\0", 6) + block)),
              1)
        << marker;
  }
  for (const std::string& name :
       {std::string(), std::string("Exif"), std::string("Exif\0", 5), std::string("Exif\0\1", 6),
        std::string("exif\0\0", 6), std::string("EXIF\0\0", 6), std::string("Exif\0\0\0", 7)}) {
    EXPECT_EQ(OrientationIn(JpegSegmentBytes(0xE1, name + block)), 1) << name;
  }
}

TEST(ExifBlock, BehindTheHeadOfAScanIsNone) {
  const std::string scan = JpegSegmentBytes(0xDA, "scan");
  EXPECT_EQ(static_cast<int>(ReadExifOrientation("\xFF\xD8" + scan + ExifSegment(6, true))), 1);
  EXPECT_EQ(static_cast<int>(ReadExifOrientation("\xFF\xD8" + ExifSegment(6, true) + scan)), 6);
}

TEST(ExifBlock, OfAFileThatBeginsWithTheStartOfItsImageAloneIsNotLookedAt) {
  EXPECT_EQ(static_cast<int>(ReadExifOrientation(std::string("\xFF\xD8\0", 3) + ExifSegment(6, true))), 1);
  EXPECT_FALSE(BeginsLikeJpeg("\xFF\xD8"));
  EXPECT_FALSE(BeginsLikeJpeg(std::string("\xFF\xD8\0", 3)));
}

}  // namespace
}  // namespace pictures
