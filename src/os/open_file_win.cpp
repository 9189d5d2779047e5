#include "os/open_file_win.h"

#include "os/paths.h"
#include "os/utf16_win.h"

namespace os {

std::wstring FullPath(const std::wstring& path) {
  const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(size, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
  return full.empty() ? path : full;
}

std::wstring WidePath(const std::string& path, std::size_t extra) {
  const std::wstring wide = ToWide(path);
  return wide.size() + extra > kLongestPlainPath ? LongPath(FullPath(wide)) : wide;
}

bool IsFile(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(WidePath(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

FileHandle OpenForReading(const std::string& path) {
  FileHandle file(CreateFileW(WidePath(path).c_str(), GENERIC_READ,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                              FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  if (file.isOpen() && GetFileType(file.get()) != FILE_TYPE_DISK) return FileHandle(INVALID_HANDLE_VALUE);
  return file;
}

}  // namespace os
