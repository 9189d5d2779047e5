#include "os/wide_path_win.h"

#include <windows.h>

#include "os/long_path.h"
#include "os/utf16_win.h"

namespace os {

namespace {

std::wstring FullPath(const std::wstring& path) {
  const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(size, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
  return full.empty() ? path : full;
}

}  // namespace

std::wstring WidePath(const std::string& path, std::size_t extra) {
  const std::wstring wide = ToWide(path);
  return wide.size() + extra > kLongestPlainPath ? LongPath(FullPath(wide)) : wide;
}

}  // namespace os
