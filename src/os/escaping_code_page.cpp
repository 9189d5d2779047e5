#include "os/escaping_code_page.h"

#include <algorithm>

#include "base/text.h"

namespace os {

namespace {

constexpr char32_t kEscape = 0xDC00;  // plus the byte

bool IsEscape(char32_t character) { return character >= kEscape + 0x80 && character <= kEscape + 0xFF; }

// Where the first escape at or behind `from` stands; the end of the text when there is none.
std::size_t FindEscape(std::string_view utf8, std::size_t from) {
  while (from < utf8.size()) {
    const base::Utf8Character character = base::Utf8CharacterAt(utf8, from);
    if (IsEscape(character.value)) break;
    from += character.length;
  }
  return from;
}

}  // namespace

std::string EscapingCodePage::decode(std::string_view ansi) const {
  if (base::IsAscii(ansi)) return std::string(ansi);
  if (auto whole = decodeExactly(ansi)) return *whole;
  std::string utf8;
  while (!ansi.empty()) {
    std::size_t length = std::min(std::max<std::size_t>(characterLength(ansi), 1), ansi.size());
    if (const auto character = decodeExactly(ansi.substr(0, length))) {
      utf8 += *character;
    } else {
      length = 1;
      base::AppendUtf8(utf8, kEscape + static_cast<unsigned char>(ansi.front()));
    }
    ansi.remove_prefix(length);
  }
  return utf8;
}

std::optional<std::string> EscapingCodePage::encode(std::string_view utf8) const {
  if (base::IsAscii(utf8)) return std::string(utf8);
  std::string ansi;
  bool escaped = false;
  for (std::size_t position = 0; position < utf8.size();) {
    const std::size_t escape = FindEscape(utf8, position);
    if (escape > position) {
      const auto part = encodeExactly(utf8.substr(position, escape - position));
      if (!part) return std::nullopt;
      ansi += *part;
    }
    if (escape == utf8.size()) break;
    const base::Utf8Character character = base::Utf8CharacterAt(utf8, escape);
    ansi += static_cast<char>(static_cast<unsigned char>(character.value - kEscape));
    position = escape + character.length;
    escaped = true;
  }
  // A lone surrogate that did not come from decode() may look like an escape, but its byte would read back as
  // something else.
  if (escaped && decode(ansi) != utf8) return std::nullopt;
  return ansi;
}

}  // namespace os
