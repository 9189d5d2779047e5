// The directories of a TIFF block (TIFF 6.0, section 2): the form of TIFF files, and of what cameras note in
// JPEG files (Exif 2.3).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "pictures/byte_reader.h"

namespace pictures {

// One entry of a directory. What stands beyond the end of the bytes is 0.
struct TiffEntry {
  std::uint16_t tag = 0;
  std::uint16_t type = 0;
  std::uint32_t count = 0;  // of values of that type
  std::size_t place = 0;    // of the four bytes that hold the value, or the offset at which it stands
};

// Offsets inside a block count from its beginning.
class TiffBlock {
 public:
  // Nothing for bytes that do not begin as such a block.
  static std::optional<TiffBlock> of(std::string_view bytes);

  // The offset of the first directory: that of the picture itself.
  std::optional<std::uint32_t> firstDirectory() const { return bytes_.u32(4); }

  // The entry at an index of the directory at an offset; nothing behind the last one.
  std::optional<TiffEntry> entry(std::size_t directory, std::size_t index) const;

  // A single whole number. The types that hold one are taken for each other, as writers do.
  std::optional<std::uint32_t> number(const TiffEntry& entry) const;

  // A text, or bytes of no further meaning; nothing where they do not lie wholly inside.
  std::optional<std::string_view> text(const TiffEntry& entry) const;

 private:
  explicit TiffBlock(const ByteReader& bytes) : bytes_(bytes) {}

  ByteReader bytes_;
};

}  // namespace pictures
