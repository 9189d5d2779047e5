#include "base/text.h"

#include <algorithm>
#include <array>

namespace base {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstHighSurrogate = 0xD800;
constexpr char32_t kFirstLowSurrogate = 0xDC00;
constexpr char32_t kLastSurrogate = 0xDFFF;
constexpr char32_t kFirstOfSecondPlane = 0x10000;

bool IsHighSurrogate(char32_t unit) { return unit >= kFirstHighSurrogate && unit < kFirstLowSurrogate; }
bool IsLowSurrogate(char32_t unit) { return unit >= kFirstLowSurrogate && unit <= kLastSurrogate; }

void AppendUtf16(std::u16string& text, char32_t character) {
  if (character < kFirstOfSecondPlane) {
    text += static_cast<char16_t>(character);
    return;
  }
  const char32_t rest = character - kFirstOfSecondPlane;
  text += static_cast<char16_t>(kFirstHighSurrogate + (rest >> 10));
  text += static_cast<char16_t>(kFirstLowSurrogate + (rest & 0x3FF));
}

}  // namespace

Utf8Character Utf8CharacterAt(std::string_view text, std::size_t position) {
  const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
  const unsigned char lead = byteAt(position);
  if (lead < 0x80) return {lead, 1, true};
  const Utf8Character broken{kReplacement, 1, false};
  if (lead < 0xC2 || lead > 0xF4) return broken;
  const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (text.size() - position < length) return broken;
  constexpr std::array<unsigned char, 5> kLeadMask{0, 0x7F, 0x1F, 0x0F, 0x07};
  char32_t value = lead & kLeadMask[length];
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned char next = byteAt(position + i);
    if ((next & 0xC0) != 0x80) return broken;
    value = (value << 6) | (next & 0x3FU);
  }
  // A longer form than the character needs is no character.
  constexpr std::array<char32_t, 5> kSmallest{0, 0, 0x80, 0x800, 0x10000};
  if (value < kSmallest[length] || value > 0x10FFFF) return broken;
  return {value, length, true};
}

void AppendUtf8(std::string& text, char32_t character) {
  const auto add = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (character < 0x80) {
    add(character);
  } else if (character < 0x800) {
    add(0xC0 | (character >> 6));
    add(0x80 | (character & 0x3F));
  } else if (character < kFirstOfSecondPlane) {
    add(0xE0 | (character >> 12));
    add(0x80 | ((character >> 6) & 0x3F));
    add(0x80 | (character & 0x3F));
  } else {
    add(0xF0 | (character >> 18));
    add(0x80 | ((character >> 12) & 0x3F));
    add(0x80 | ((character >> 6) & 0x3F));
    add(0x80 | (character & 0x3F));
  }
}

std::u16string Utf16FromUtf8(std::string_view utf8) {
  std::u16string utf16;
  utf16.reserve(utf8.size());
  for (std::size_t position = 0; position < utf8.size();) {
    const Utf8Character character = Utf8CharacterAt(utf8, position);
    AppendUtf16(utf16, character.value);
    position += character.length;
  }
  return utf16;
}

std::string Utf8FromUtf16(std::u16string_view utf16) {
  std::string utf8;
  utf8.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t character = utf16[i];
    if (IsHighSurrogate(character) && i + 1 < utf16.size() && IsLowSurrogate(utf16[i + 1])) {
      character = kFirstOfSecondPlane + ((character - kFirstHighSurrogate) << 10) +
                  (static_cast<char32_t>(utf16[++i]) - kFirstLowSurrogate);
    }
    AppendUtf8(utf8, character);
  }
  return utf8;
}

char AsciiLower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

std::string AsciiLower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return AsciiLower(c); });
  return lower;
}

std::string AsciiUpper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

bool EqualAsciiBlind(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return AsciiLower(x) == AsciiLower(y); });
}

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string_view TrimBlanks(std::string_view text, std::string_view blanks) {
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

}  // namespace base
