// The bytes of a fuzzer's input, taken apart.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace fuzz {

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Cuts off and returns what stands before the first `separator`; all of it when there is none.
inline std::string_view TakeField(std::string_view& rest, char separator) {
  const std::size_t at = rest.find(separator);
  const std::string_view field = rest.substr(0, at);
  rest = at == std::string_view::npos ? std::string_view() : rest.substr(at + 1);
  return field;
}

// The value whose bytes stand first; zero bits for those that are missing.
template <typename Value>
Value FromBytes(std::string_view bytes) {
  Value value{};
  std::memcpy(&value, bytes.data(), bytes.size() < sizeof value ? bytes.size() : sizeof value);
  return value;
}

}  // namespace fuzz
