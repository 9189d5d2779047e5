// Numbers by which pictures are put into an order that looks like chance.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/text.h"

namespace library {

// Spreads every bit of a number over all of them: another number for each number.
constexpr std::uint64_t Scramble(std::uint64_t value) {
  value += 0x9E3779B97F4A7C15U;
  value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9U;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EBU;
  return value ^ (value >> 31);
}

inline constexpr std::uint64_t kEmptyPathHash = 0xCBF29CE484222325U;

// The same for paths that differ only in the case of A to Z, as the system takes them for the same file. A
// path can be given in parts: the hash of what stands in front goes into that of what follows.
inline std::uint64_t PathHash(std::string_view path, std::uint64_t hash = kEmptyPathHash) {
  for (const char c : path) {
    hash ^= static_cast<unsigned char>(base::AsciiLower(c));
    hash *= 0x100000001B3U;
  }
  return hash;
}

}  // namespace library
