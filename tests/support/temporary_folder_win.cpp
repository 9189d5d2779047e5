#include "support/temporary_folder_win.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string_view>

#include "os/handles_win.h"
#include "os/open_file_win.h"
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

void WriteFileAt(const std::string& path, std::string_view bytes) {
  const os::FileHandle file(
      CreateFileW(os::WidePath(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
  DWORD written = 0;
  EXPECT_TRUE(file.isOpen() && WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                                         nullptr) != FALSE)
      << path;
  EXPECT_EQ(written, bytes.size()) << path;
}

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

std::string TemporaryFolder::put(std::string_view name, std::string_view bytes) const {
  std::string path = path_ + '\\' + std::string(name);
  WriteFileAt(path, bytes);
  return path;
}

}  // namespace support
