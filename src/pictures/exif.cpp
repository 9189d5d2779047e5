#include "pictures/exif.h"

#include <optional>

#include "pictures/byte_reader.h"
#include "pictures/jpeg_segments.h"

namespace pictures {

namespace {

constexpr std::uint8_t kApp1 = 0xE1;
constexpr std::string_view kExifName("Exif\0\0", 6);
constexpr std::uint16_t kOrientationTag = 0x0112;
constexpr std::uint16_t kShort = 3;  // the tag's only legal type: 16 bits, left-justified in the value field
constexpr std::size_t kEntrySize = 12;

std::optional<ByteOrder> ReadByteOrder(std::string_view tiff) {
  if (tiff.substr(0, 2) == "II") return ByteOrder::littleEndian;
  if (tiff.substr(0, 2) == "MM") return ByteOrder::bigEndian;
  return std::nullopt;
}

std::optional<base::Orientation> FromTag(std::optional<std::uint16_t> value) {
  if (!value || *value < 1 || *value > 8) return std::nullopt;
  return static_cast<base::Orientation>(*value);
}

// Offsets inside a TIFF block count from its beginning. Only the first directory is looked at: the second
// one describes the thumbnail.
std::optional<base::Orientation> OrientationOfTiff(std::string_view tiff) {
  const auto order = ReadByteOrder(tiff);
  if (!order) return std::nullopt;
  const ByteReader bytes(tiff, *order);
  if (bytes.u16(2) != 42) return std::nullopt;
  const auto directory = bytes.u32(4);
  if (!directory) return std::nullopt;
  const auto count = bytes.u16(*directory);
  if (!count) return std::nullopt;
  for (std::size_t i = 0; i < *count; ++i) {
    const std::size_t entry = std::size_t{*directory} + 2 + i * kEntrySize;
    const auto tag = bytes.u16(entry);
    if (!tag) return std::nullopt;
    if (*tag == kOrientationTag && bytes.u16(entry + 2) == kShort) return FromTag(bytes.u16(entry + 8));
  }
  return std::nullopt;
}

}  // namespace

base::Orientation ReadExifOrientation(std::string_view jpegHead) {
  if (!BeginsLikeJpeg(jpegHead)) return base::Orientation::upright;
  JpegSegments segments(jpegHead);
  while (const auto segment = segments.next()) {
    if (segment->marker != kApp1 || !segment->content.starts_with(kExifName)) continue;
    return OrientationOfTiff(segment->content.substr(kExifName.size())).value_or(base::Orientation::upright);
  }
  return base::Orientation::upright;
}

}  // namespace pictures
