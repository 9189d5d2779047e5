#include "os/utf16_win.h"

#include <windows.h>

namespace os {

std::wstring ToWide(std::string_view utf8) {
  if (utf8.empty()) return {};
  const int bytes = static_cast<int>(utf8.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0)),
                    L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string FromWide(std::wstring_view utf16) {
  if (utf16.empty()) return {};
  const int units = static_cast<int>(utf16.size());
  std::string text(static_cast<std::size_t>(
                       WideCharToMultiByte(CP_UTF8, 0, utf16.data(), units, nullptr, 0, nullptr, nullptr)),
                   '\0');
  WideCharToMultiByte(CP_UTF8, 0, utf16.data(), units, text.data(), static_cast<int>(text.size()), nullptr,
                      nullptr);
  return text;
}

}  // namespace os
