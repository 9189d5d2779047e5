#include "support/gif_builder.h"

#include <algorithm>

namespace support {

namespace {

constexpr int kClear = 256;
constexpr int kEnd = 257;
constexpr int kCodesBetweenClears = 200;  // few enough that codes never grow to ten bits

char Byte(int value) { return static_cast<char>(static_cast<unsigned char>(value)); }

std::string Word(int value) { return {Byte(value & 0xFF), Byte(value >> 8)}; }

// The flag of a colour table with its size: 2 to the power of the low three bits plus 1.
int ColorFlags(const std::string& colors) {
  if (colors.empty()) return 0;
  int bits = 0;
  while ((std::size_t{6} << bits) < colors.size()) ++bits;
  return 0x80 | bits;
}

}  // namespace

std::string GifBuilder::beforeData() const {
  std::string out = "GIF89a" + Word(screen.width) + Word(screen.height);
  out += Byte(ColorFlags(globalColors));
  out += std::string("\0\0", 2) + globalColors;
  if (transparentIndex) {
    out += std::string("\x21\xF9\x04\x01\0\0", 6) + Byte(*transparentIndex) + Byte(0);
  }
  out += ',';
  out += Word(frame.left) + Word(frame.top) + Word(frame.width) + Word(frame.height);
  out += Byte(ColorFlags(localColors) | (interlaced ? 0x40 : 0));
  return out + localColors;
}

std::string GifBuilder::data() const {
  std::vector<int> codes;
  for (std::size_t i = 0; i < indices.size(); ++i) {
    if (i % kCodesBetweenClears == 0) codes.push_back(kClear);
    codes.push_back(indices[i]);
  }
  codes.push_back(kEnd);
  return GifCodes(codes) + ";";
}

std::string GifCodes(const std::vector<int>& codes) {
  std::string packed;
  unsigned bits = 0;
  int count = 0;
  for (const int code : codes) {
    bits |= static_cast<unsigned>(code) << count;
    for (count += 9; count >= 8; count -= 8, bits >>= 8) packed += Byte(static_cast<int>(bits & 0xFF));
  }
  if (count > 0) packed += Byte(static_cast<int>(bits & 0xFF));
  std::string out(1, Byte(8));
  for (std::size_t at = 0; at < packed.size(); at += 255) {
    const std::string block = packed.substr(at, 255);
    out += Byte(static_cast<int>(block.size())) + block;
  }
  return out + Byte(0);
}

}  // namespace support
