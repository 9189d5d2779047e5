// Reads numbers out of a file's bytes without ever leaving them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace pictures {

enum class ByteOrder { LittleEndian, BigEndian };

class ByteReader {
 public:
  ByteReader(std::string_view bytes, ByteOrder order) : bytes_(bytes), order_(order) {}

  std::size_t size() const { return bytes_.size(); }

  // The number at an offset, or nothing when it does not lie wholly inside.
  std::optional<std::uint8_t> u8(std::size_t offset) const {
    const auto value = number(offset, 1);
    return value ? std::optional(static_cast<std::uint8_t>(*value)) : std::nullopt;
  }
  std::optional<std::uint16_t> u16(std::size_t offset) const {
    const auto value = number(offset, 2);
    return value ? std::optional(static_cast<std::uint16_t>(*value)) : std::nullopt;
  }
  std::optional<std::uint32_t> u32(std::size_t offset) const { return number(offset, 4); }

  // Up to `length` bytes from an offset, as far as there are any.
  std::string_view part(std::size_t offset, std::size_t length) const {
    return offset < bytes_.size() ? bytes_.substr(offset, length) : std::string_view();
  }

 private:
  std::optional<std::uint32_t> number(std::size_t offset, std::size_t width) const {
    if (offset > bytes_.size() || bytes_.size() - offset < width) return std::nullopt;
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < width; ++i) {
      const std::size_t at = order_ == ByteOrder::BigEndian ? i : width - 1 - i;
      value = value << 8 | static_cast<std::uint8_t>(bytes_[offset + at]);
    }
    return value;
  }

  std::string_view bytes_;
  ByteOrder order_;
};

}  // namespace pictures
