#include "pictures/lzw_decoder.h"

#include <algorithm>

namespace pictures {

LzwDecoder::LzwDecoder(int minimumCodeSize)
    : minimumCodeSize_(minimumCodeSize), clearCode_(1 << minimumCodeSize) {
  for (int code = 0; code < clearCode_; ++code) {
    const auto at = static_cast<std::size_t>(code);
    prefix_[at] = kNone;
    suffix_[at] = first_[at] = static_cast<std::uint8_t>(code);
    length_[at] = 1;
  }
  startOver();
}

bool LzwDecoder::decode(std::string_view block, std::vector<std::uint8_t>& out, std::size_t limit) {
  for (const char byte : block) {
    bits_ |= static_cast<std::uint32_t>(static_cast<std::uint8_t>(byte)) << bitCount_;
    bitCount_ += 8;
    while (bitCount_ >= codeSize_) {
      const auto code = static_cast<int>(bits_ & ((1U << codeSize_) - 1U));
      bits_ >>= codeSize_;
      bitCount_ -= codeSize_;
      if (!take(code, out, limit)) return false;
    }
  }
  return true;
}

bool LzwDecoder::take(int code, std::vector<std::uint8_t>& out, std::size_t limit) {
  if (code == clearCode_) {
    startOver();
    return true;
  }
  const bool isEnd = code == clearCode_ + 1;
  const bool isUnknown = code > nextCode_ || (code == nextCode_ && previous_ == kNone);
  if (isEnd || isUnknown) return false;
  if (previous_ != kNone) {
    // A code that is about to be made stands for the previous string and its own first byte.
    const bool isBeingMade = code == nextCode_;
    remember(previous_, firstByte(isBeingMade ? previous_ : code));
  }
  if (nextCode_ >= 1 << codeSize_ && codeSize_ < kMostBits) ++codeSize_;
  append(code, out, limit);
  previous_ = code;
  return out.size() < limit;
}

void LzwDecoder::startOver() {
  codeSize_ = minimumCodeSize_ + 1;
  nextCode_ = clearCode_ + 2;
  previous_ = kNone;
}

// A full table stays as it is until it is cleared.
void LzwDecoder::remember(int prefix, std::uint8_t suffix) {
  if (nextCode_ == 1 << kMostBits) return;
  const auto at = static_cast<std::size_t>(nextCode_);
  const auto from = static_cast<std::size_t>(prefix);
  prefix_[at] = static_cast<std::int16_t>(prefix);
  suffix_[at] = suffix;
  first_[at] = first_[from];
  length_[at] = static_cast<std::uint16_t>(length_[from] + 1);
  ++nextCode_;
}

void LzwDecoder::append(int code, std::vector<std::uint8_t>& out, std::size_t limit) const {
  std::size_t length = length_[static_cast<std::size_t>(code)];
  const std::size_t start = out.size();
  const std::size_t kept = std::min(length, limit - start);
  out.resize(start + kept);
  for (int at = code; at != kNone; at = prefix_[static_cast<std::size_t>(at)]) {
    --length;
    if (length < kept) out[start + length] = suffix_[static_cast<std::size_t>(at)];
  }
}

}  // namespace pictures
