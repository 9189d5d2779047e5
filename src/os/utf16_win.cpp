#include "os/utf16_win.h"

#include "base/text.h"

namespace os {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::wstring ToWide(std::string_view utf8) {
  const std::u16string utf16 = base::Utf16FromUtf8(utf8);
  return {utf16.begin(), utf16.end()};
}

std::string FromWide(std::wstring_view wide) {
  return base::Utf8FromUtf16(std::u16string(wide.begin(), wide.end()));
}

}  // namespace os
