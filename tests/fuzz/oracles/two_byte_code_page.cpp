#include "fuzz/oracles/two_byte_code_page.h"

#include "base/text.h"

namespace fuzz {

namespace {

constexpr char32_t kFirstOfTwo = 0x4E00;
constexpr char32_t kFirstSingle = 0xFF61;
constexpr unsigned kSeconds = 0x7E - 0x40 + 1;

bool IsLead(unsigned byte) { return byte >= 0x81 && byte <= 0x9F; }
bool IsSecond(unsigned byte) { return byte >= 0x40 && byte <= 0x7E; }
bool IsSingle(unsigned byte) { return byte >= 0xA1 && byte <= 0xDF; }

}  // namespace

std::optional<std::string> TwoByteCodePage::decodeExactly(std::string_view ansi) const {
  std::string utf8;
  for (std::size_t i = 0; i < ansi.size(); ++i) {
    const unsigned byte = static_cast<unsigned char>(ansi[i]);
    const unsigned next = i + 1 < ansi.size() ? static_cast<unsigned char>(ansi[i + 1]) : 0U;
    if (byte < 0x80) {
      utf8 += ansi[i];
    } else if (IsSingle(byte)) {
      base::AppendUtf8(utf8, kFirstSingle + (byte - 0xA1));
    } else if (IsLead(byte) && IsSecond(next)) {
      base::AppendUtf8(utf8, kFirstOfTwo + (byte - 0x81) * kSeconds + (next - 0x40));
      ++i;
    } else {
      return std::nullopt;
    }
  }
  return utf8;
}

std::optional<std::string> TwoByteCodePage::encodeExactly(std::string_view utf8) const {
  std::string ansi;
  const auto add = [&](char32_t byte) { ansi += static_cast<char>(static_cast<unsigned char>(byte)); };
  for (std::size_t at = 0; at < utf8.size();) {
    const base::Utf8Character character = base::Utf8CharacterAt(utf8, at);
    const char32_t value = character.value;
    if (value < 0x80) {
      add(value);
    } else if (value >= kFirstSingle && value <= kFirstSingle + (0xDF - 0xA1)) {
      add(0xA1 + (value - kFirstSingle));
    } else if (value >= kFirstOfTwo && value < kFirstOfTwo + (0x9F - 0x81 + 1) * kSeconds) {
      add(0x81 + (value - kFirstOfTwo) / kSeconds);
      add(0x40 + (value - kFirstOfTwo) % kSeconds);
    } else {
      return std::nullopt;
    }
    at += character.length;
  }
  return ansi;
}

std::size_t TwoByteCodePage::characterLength(std::string_view ansi) const {
  return IsLead(static_cast<unsigned char>(ansi.front())) ? 2 : 1;
}

}  // namespace fuzz
