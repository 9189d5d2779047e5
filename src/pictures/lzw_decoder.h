// The variable-length codes in which a GIF file holds its pixels (GIF89a, appendix F).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace pictures {

class LzwDecoder {
 public:
  // `minimumCodeSize` is the byte before the data, 2 to 8 in a legal file and 1 to 11 in one that is read.
  explicit LzwDecoder(int minimumCodeSize);

  static bool accepts(int minimumCodeSize) { return minimumCodeSize >= 1 && minimumCodeSize <= 11; }

  // Decodes one block of data and appends what it gives to `out`, up to `limit` bytes in all. False when
  // nothing more is to come: the end code, a code that cannot be, or enough bytes.
  bool decode(std::string_view block, std::vector<std::uint8_t>& out, std::size_t limit);

 private:
  static constexpr int kMostBits = 12;
  static constexpr int kNone = -1;

  bool take(int code, std::vector<std::uint8_t>& out, std::size_t limit);
  void startOver();
  void remember(int prefix, std::uint8_t suffix);
  void append(int code, std::vector<std::uint8_t>& out, std::size_t limit) const;
  std::uint8_t firstByte(int code) const { return first_[static_cast<std::size_t>(code)]; }

  int minimumCodeSize_;
  int clearCode_;
  int codeSize_ = 0;
  int nextCode_ = 0;
  int previous_ = kNone;
  std::uint32_t bits_ = 0;
  int bitCount_ = 0;
  // One string of bytes for each code: the string of another code and a last byte.
  std::array<std::int16_t, 1 << kMostBits> prefix_{};
  std::array<std::uint8_t, 1 << kMostBits> suffix_{};
  std::array<std::uint8_t, 1 << kMostBits> first_{};
  std::array<std::uint16_t, 1 << kMostBits> length_{};
};

}  // namespace pictures
