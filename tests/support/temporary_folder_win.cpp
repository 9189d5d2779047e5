#include "support/temporary_folder_win.h"

#include <windows.h>

#include <filesystem>

#include "os/utf16_win.h"

namespace support {

TemporaryFolder::TemporaryFolder() {
  static unsigned count = 0;
  wchar_t temp[MAX_PATH + 1] = {};
  GetTempPathW(MAX_PATH + 1, temp);
  const std::wstring path = std::wstring(temp) + L"lumora-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                            std::to_wstring(++count);
  CreateDirectoryW(path.c_str(), nullptr);
  path_ = os::FromWide(path);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(L"\\\\?\\" + os::ToWide(path_), ignored);
}

}  // namespace support
