#include "support/windows_1252.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace support {

namespace {

constexpr std::array<char32_t, 32> kFrom80{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

std::string Windows1252::decode(std::string_view ansi) const {
  std::string utf8;
  for (const char c : ansi) {
    const auto byte = static_cast<unsigned char>(c);
    base::AppendUtf8(utf8, byte >= 0x80 && byte < 0xA0 ? kFrom80[byte - 0x80U] : byte);
  }
  return utf8;
}

std::optional<std::string> Windows1252::encode(std::string_view utf8) const {
  std::string ansi;
  for (std::size_t position = 0; position < utf8.size();) {
    const base::Utf8Character character = base::Utf8CharacterAt(utf8, position);
    const char32_t value = character.value;
    position += character.length;
    if (value < 0x80 || (value >= 0xA0 && value <= 0xFF)) {
      ansi += static_cast<char>(static_cast<unsigned char>(value));
      continue;
    }
    const auto* const found = std::find(kFrom80.begin(), kFrom80.end(), value);
    if (found == kFrom80.end()) return std::nullopt;
    ansi += static_cast<char>(static_cast<unsigned char>(0x80 + (found - kFrom80.begin())));
  }
  return ansi;
}

}  // namespace support
