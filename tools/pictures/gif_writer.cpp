#include "pictures/gif_writer.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace pictures {

namespace {

constexpr int kCodeSize = 8;
constexpr int kClear = 1 << kCodeSize;
constexpr int kEnd = kClear + 1;
constexpr int kMostCodes = 1 << 12;

char Byte(int value) { return static_cast<char>(static_cast<unsigned char>(value)); }
std::string Word(int value) { return {Byte(value & 0xFF), Byte(value >> 8 & 0xFF)}; }

// Packs codes of growing width into sub-blocks, low bits first.
class CodeWriter {
 public:
  void put(int code, int width) {
    bits_ |= static_cast<std::uint32_t>(code) << count_;
    for (count_ += width; count_ >= 8; count_ -= 8, bits_ >>= 8) add(static_cast<int>(bits_ & 0xFF));
  }

  std::string finish() {
    if (count_ > 0) add(static_cast<int>(bits_ & 0xFF));
    flush();
    return out_ + Byte(0);
  }

 private:
  void add(int byte) {
    block_ += Byte(byte);
    if (block_.size() == 255) flush();
  }
  void flush() {
    if (block_.empty()) return;
    out_ += Byte(static_cast<int>(block_.size())) + block_;
    block_.clear();
  }

  std::uint32_t bits_ = 0;
  int count_ = 0;
  std::string block_;
  std::string out_;
};

// The strings that have a code, as a tree: one step for each further byte.
class Strings {
 public:
  Strings() : steps_(static_cast<std::size_t>(kMostCodes) << kCodeSize) {}

  // The code of `code`'s string with one more byte, or 0 when it has none yet.
  int longer(int code, std::uint8_t byte) const { return steps_[place(code, byte)]; }
  void add(int code, std::uint8_t byte, int longerCode) {
    steps_[place(code, byte)] = static_cast<std::int16_t>(longerCode);
  }
  void clear() { std::fill(steps_.begin(), steps_.end(), std::int16_t{0}); }

 private:
  static std::size_t place(int code, std::uint8_t byte) {
    return static_cast<std::size_t>(code) << kCodeSize | byte;
  }
  std::vector<std::int16_t> steps_;
};

std::string Compressed(const std::vector<std::uint8_t>& bytes) {
  CodeWriter writer;
  Strings strings;
  int width = kCodeSize + 1;
  int next = kEnd + 1;
  writer.put(kClear, width);
  int code = bytes[0];
  for (std::size_t i = 1; i < bytes.size(); ++i) {
    if (const int longer = strings.longer(code, bytes[i])) {
      code = longer;
      continue;
    }
    writer.put(code, width);
    if (next == kMostCodes) {
      writer.put(kClear, width);
      strings.clear();
      width = kCodeSize + 1;
      next = kEnd + 1;
    } else {
      strings.add(code, bytes[i], next);
      if (next == 1 << width) ++width;
      ++next;
    }
    code = bytes[i];
  }
  writer.put(code, width);
  if (next == 1 << width && next < kMostCodes) ++width;  // the reader has made one more code meanwhile
  writer.put(kEnd, width);
  return writer.finish();
}

}  // namespace

std::string GifFile(const Indexed& picture) {
  std::string colors = picture.colors;
  colors.resize(std::size_t{3} << kCodeSize, '\0');
  const std::string size = Word(picture.size.width) + Word(picture.size.height);
  std::string file = "GIF89a" + size + Byte(0xF7) + Byte(0) + Byte(0) + colors;
  file += ",";
  file += Word(0) + Word(0) + size + Byte(0);
  file += Byte(kCodeSize) + Compressed(picture.indices) + ";";
  return file;
}

}  // namespace pictures
