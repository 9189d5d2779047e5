#include "pictures/jpeg_head.h"

namespace pictures {

namespace {

constexpr std::uint8_t kStartOfImage = 0xD8;
constexpr std::uint8_t kEndOfImage = 0xD9;

// Markers that stand alone, without a length after them: TEM and the restart markers.
bool StandsAlone(std::uint8_t marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= kStartOfImage);
}

constexpr std::uint8_t kApp1 = 0xE1;
constexpr std::string_view kExifName("Exif\0\0", 6);
constexpr std::uint16_t kOrientationTag = 0x0112;
constexpr std::size_t kEntrySize = 12;

std::optional<ByteOrder> ReadByteOrder(std::string_view tiff) {
  if (tiff.substr(0, 2) == "II") return ByteOrder::LittleEndian;
  if (tiff.substr(0, 2) == "MM") return ByteOrder::BigEndian;
  return std::nullopt;
}

// The value of a directory's entry. The tag is meant to be a SHORT; some writers make it a LONG or a BYTE. A
// shorter number stands at the beginning of the four bytes.
std::optional<std::uint32_t> EntryValue(const ByteReader& bytes, std::size_t entry) {
  constexpr std::uint16_t kByte = 1;
  constexpr std::uint16_t kShort = 3;
  constexpr std::uint16_t kLong = 4;
  const std::size_t value = entry + 8;
  switch (bytes.u16(entry + 2).value_or(0)) {
    case kByte:
      return bytes.u8(value);
    case kShort:
      return bytes.u16(value);
    case kLong:
      return bytes.u32(value);
    default:
      return std::nullopt;
  }
}

std::optional<base::Orientation> OrientationNumbered(std::optional<std::uint32_t> number) {
  if (!number || *number < 1 || *number > 8) return std::nullopt;
  return static_cast<base::Orientation>(*number);
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
    if (*tag != kOrientationTag) continue;
    if (const auto orientation = OrientationNumbered(EntryValue(bytes, entry))) return orientation;
  }
  return std::nullopt;
}

}  // namespace

std::optional<JpegSegment> JpegSegments::next() {
  while (bytes_.u8(at_) == 0xFF) {
    const auto marker = bytes_.u8(at_ + 1);
    if (!marker) return std::nullopt;
    if (*marker == 0xFF) {  // fill byte
      ++at_;
      continue;
    }
    if (*marker == 0 || *marker == kEndOfImage) return std::nullopt;
    if (StandsAlone(*marker)) {
      at_ += 2;
      continue;
    }
    const auto length = bytes_.u16(at_ + 2);  // counts itself
    if (!length || *length < 2) return std::nullopt;
    const JpegSegment segment{*marker, bytes_.part(at_ + 4, *length - 2U)};
    at_ = *marker == kStartOfScan ? bytes_.size() : at_ + 2U + *length;
    return segment;
  }
  return std::nullopt;
}

bool BeginsLikeJpeg(std::string_view head) { return head.substr(0, 3) == "\xFF\xD8\xFF"; }

bool BeginsLikeTiff(std::string_view head) {
  return head.starts_with(std::string_view("II\x2A\0", 4)) ||
         head.starts_with(std::string_view("MM\0\x2A", 4));
}

base::Orientation ReadExifOrientation(std::string_view head) {
  if (BeginsLikeTiff(head)) return OrientationOfTiff(head).value_or(base::Orientation::Upright);
  if (!BeginsLikeJpeg(head)) return base::Orientation::Upright;
  JpegSegments segments(head);
  while (const auto segment = segments.next()) {
    if (segment->marker != kApp1 || !segment->content.starts_with(kExifName)) continue;
    // A block that says nothing of use does not hide a later one that does.
    const auto orientation = OrientationOfTiff(segment->content.substr(kExifName.size()));
    if (orientation) return *orientation;
  }
  return base::Orientation::Upright;
}

}  // namespace pictures
