#include "pictures/noted_text.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/text.h"
#include "pictures/byte_reader.h"

namespace pictures {

namespace {

constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// The upper half of a Latin letter is 0.
ByteOrder LikelyOrder(std::string_view bytes) {
  std::size_t zeros[2] = {0, 0};
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    if (bytes[i] == '\0' && bytes[i + 1] == '\0') break;
    for (std::size_t half = 0; half < 2; ++half) {
      if (bytes[i + half] == '\0') ++zeros[half];
    }
  }
  return zeros[0] > zeros[1] ? ByteOrder::BigEndian : ByteOrder::LittleEndian;
}

ByteOrder TakeOrder(std::string_view& bytes) {
  for (const auto& [mark, order] : {std::pair(kLittleEndianMark, ByteOrder::LittleEndian),
                                    std::pair(kBigEndianMark, ByteOrder::BigEndian)}) {
    if (!bytes.starts_with(mark)) continue;
    bytes.remove_prefix(mark.size());
    return order;
  }
  return LikelyOrder(bytes);
}

}  // namespace

bool IsBlank(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) <= ' ' || c == 0x7F; });
}

void NoteFirst(std::string& place, std::string text) {
  if (place.empty() && !IsBlank(text)) place = std::move(text);
}

std::string TextOfUtf16(std::string_view bytes) {
  const ByteOrder order = TakeOrder(bytes);
  const ByteReader units(bytes, order);
  std::u16string text;
  for (std::size_t at = 0; const auto unit = units.u16(at); at += 2) {
    if (*unit == 0) break;
    text += static_cast<char16_t>(*unit);
  }
  return base::Utf8FromUtf16(text);
}

std::string NotedText(std::string_view bytes) {
  if (bytes.starts_with(kLittleEndianMark) || bytes.starts_with(kBigEndianMark)) return TextOfUtf16(bytes);
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  return std::string(bytes.substr(0, bytes.find('\0')));
}

}  // namespace pictures
