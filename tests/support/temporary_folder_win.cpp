#include "support/temporary_folder_win.h"

#include <windows.h>

#include <string_view>

#include "os/utf16_win.h"

namespace support {

namespace {

// With everything in it, at any depth: `path` begins with "\\?\".
void RemoveFolder(const std::wstring& path) {
  WIN32_FIND_DATAW entry{};
  const HANDLE search = FindFirstFileW((path + L"\\*").c_str(), &entry);
  if (search != INVALID_HANDLE_VALUE) {
    do {
      const std::wstring_view name(entry.cFileName);
      const std::wstring inner = path + L'\\' + entry.cFileName;
      if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        DeleteFileW(inner.c_str());
      } else if (name != L"." && name != L"..") {
        RemoveFolder(inner);
      }
    } while (FindNextFileW(search, &entry) != FALSE);
    FindClose(search);
  }
  RemoveDirectoryW(path.c_str());
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  static unsigned count = 0;
  wchar_t temp[MAX_PATH + 1] = {};
  GetTempPathW(MAX_PATH + 1, temp);
  std::wstring path;
  do {
    path = std::wstring(temp) + L"lumora-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
           std::to_wstring(++count);
  } while (CreateDirectoryW(path.c_str(), nullptr) == FALSE && GetLastError() == ERROR_ALREADY_EXISTS);
  path_ = os::FromWide(path);
}

TemporaryFolder::~TemporaryFolder() { RemoveFolder(L"\\\\?\\" + os::ToWide(path_)); }

}  // namespace support
