#include "settings/stored_length.h"

#include <algorithm>
#include <optional>
#include <string>

#include "base/text.h"
#include "settings/read_ini_value.h"

namespace settings {

std::size_t StoredLength(std::string_view text, const os::AnsiCodePage& ansi) {
  const std::size_t units = base::Utf16FromUtf8(text).size();
  const std::optional<std::string> bytes = ansi.encode(text);
  return bytes ? std::max(units, bytes->size()) : units;
}

bool FitsSettings(std::string_view text, const os::AnsiCodePage& ansi) {
  return StoredLength(text, ansi) <= kLongestValue;
}

}  // namespace settings
