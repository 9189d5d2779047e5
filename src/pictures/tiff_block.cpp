#include "pictures/tiff_block.h"

namespace pictures {

namespace {

constexpr std::size_t kEntrySize = 12;
constexpr std::uint32_t kMostInPlace = 4;  // bytes of a value that stand in the entry itself

constexpr std::uint16_t kByte = 1;
constexpr std::uint16_t kAscii = 2;
constexpr std::uint16_t kShort = 3;
constexpr std::uint16_t kLong = 4;
constexpr std::uint16_t kUndefined = 7;
constexpr std::uint16_t kUtf8 = 129;  // Exif 3.0

std::optional<ByteOrder> ReadByteOrder(std::string_view tiff) {
  if (tiff.substr(0, 2) == "II") return ByteOrder::LittleEndian;
  if (tiff.substr(0, 2) == "MM") return ByteOrder::BigEndian;
  return std::nullopt;
}

}  // namespace

std::optional<TiffBlock> TiffBlock::of(std::string_view bytes) {
  const auto order = ReadByteOrder(bytes);
  if (!order) return std::nullopt;
  const ByteReader reader(bytes, *order);
  if (reader.u16(2) != 42) return std::nullopt;
  return TiffBlock(reader);
}

std::optional<TiffEntry> TiffBlock::entry(std::size_t directory, std::size_t index) const {
  const auto count = bytes_.u16(directory);
  if (!count || index >= *count) return std::nullopt;
  const std::size_t at = directory + 2 + index * kEntrySize;
  const auto tag = bytes_.u16(at);
  if (!tag) return std::nullopt;
  return TiffEntry{*tag, bytes_.u16(at + 2).value_or(0), bytes_.u32(at + 4).value_or(0), at + 8};
}

// A shorter number stands at the beginning of the four bytes.
std::optional<std::uint32_t> TiffBlock::number(const TiffEntry& entry) const {
  switch (entry.type) {
    case kByte:
      return bytes_.u8(entry.place);
    case kShort:
      return bytes_.u16(entry.place);
    case kLong:
      return bytes_.u32(entry.place);
    default:
      return std::nullopt;
  }
}

std::optional<std::string_view> TiffBlock::text(const TiffEntry& entry) const {
  const bool isText =
      entry.type == kByte || entry.type == kAscii || entry.type == kUndefined || entry.type == kUtf8;
  if (!isText) return std::nullopt;
  std::size_t at = entry.place;
  if (entry.count > kMostInPlace) {
    const auto offset = bytes_.u32(entry.place);
    if (!offset) return std::nullopt;
    at = *offset;
  }
  const std::string_view found = bytes_.part(at, entry.count);
  return found.size() == entry.count ? std::optional(found) : std::nullopt;
}

}  // namespace pictures
