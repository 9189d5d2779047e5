// Numbers as the bytes of a file.
#pragma once

#include <cstdint>
#include <string>

namespace support {

inline std::string LittleEndian(std::uint32_t value, int bytes) {
  std::string out;
  for (int i = 0; i < bytes; ++i)
    out += static_cast<char>(static_cast<unsigned char>(value >> (8 * i) & 0xFF));
  return out;
}

inline std::string BigEndian(std::uint32_t value, int bytes) {
  const std::string reversed = LittleEndian(value, bytes);
  return {reversed.rbegin(), reversed.rend()};
}

inline std::string NumberBytes(std::uint32_t value, int bytes, bool bigEndian) {
  return bigEndian ? BigEndian(value, bytes) : LittleEndian(value, bytes);
}

}  // namespace support
