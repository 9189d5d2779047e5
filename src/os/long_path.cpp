#include "os/long_path.h"

namespace os {

std::wstring LongPath(std::wstring_view absolutePath) {
  const std::wstring path(absolutePath);
  if (path.starts_with(L"\\\\?\\") || path.starts_with(L"\\\\.\\")) return path;
  if (path.starts_with(L"\\\\")) return L"\\\\?\\UNC" + path.substr(1);
  return L"\\\\?\\" + path;
}

}  // namespace os
