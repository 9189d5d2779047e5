// Text rules: UTF-8 inside the program, UTF-16 at the system's border, comparisons that know ASCII letters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace base {

// UTF-8 as UTF-16. A byte that belongs to no character becomes U+FFFD. A lone half of a surrogate pair in its
// three-byte form comes through as it is, so that every UTF-16 text survives a journey through UTF-8.
std::u16string Utf16FromUtf8(std::string_view utf8);

// UTF-16 as UTF-8; a lone half of a surrogate pair gets the three-byte form. Never fails.
std::string Utf8FromUtf16(std::u16string_view utf16);

// Appends one character (up to U+10FFFF) as UTF-8.
void AppendUtf8(std::string& text, char32_t character);

// One character at the front of a text, and the number of bytes that it takes.
struct Utf8Character {
  char32_t value;
  std::size_t length;  // 1 to 4
  bool valid;          // false: the byte belongs to no character; value is U+FFFD and length 1
};

// The character that begins at `position`, which must lie inside the text.
Utf8Character Utf8CharacterAt(std::string_view text, std::size_t position);

// The letters A to Z in lower case, all else as it is.
char AsciiLower(char character);
std::string AsciiLower(std::string_view text);

// The letters a to z in upper case, all else as it is.
std::string AsciiUpper(std::string_view text);

// Equal when the letters A to Z count as a to z.
bool EqualAsciiBlind(std::string_view a, std::string_view b);

bool IsAscii(std::string_view text);

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Without the characters of `blanks` at its ends. What is left lies in the text, also when nothing is.
std::string_view TrimBlanks(std::string_view text, std::string_view blanks = " ");

}  // namespace base
