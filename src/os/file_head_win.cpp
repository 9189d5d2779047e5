#include "os/file_head_win.h"

#include <algorithm>

#include "os/wide_path_win.h"

namespace os {

FileHandle OpenForReading(const std::string& path) {
  FileHandle file(CreateFileW(WidePath(path).c_str(), GENERIC_READ,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                              FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  if (file.isOpen() && GetFileType(file.get()) != FILE_TYPE_DISK) return FileHandle(INVALID_HANDLE_VALUE);
  return file;
}

std::optional<std::string> FileHeadWin::readHead(const std::string& path, std::size_t limit) {
  const FileHandle file = OpenForReading(path);
  LARGE_INTEGER size{};
  if (!file.isOpen() || GetFileSizeEx(file.get(), &size) == FALSE) return std::nullopt;
  std::string head(
      static_cast<std::size_t>(std::min<ULONGLONG>(static_cast<ULONGLONG>(size.QuadPart), limit)), '\0');
  constexpr std::size_t kStep = 1U << 26;
  std::size_t filled = 0;
  while (filled < head.size()) {
    const auto wanted = static_cast<DWORD>(std::min(head.size() - filled, kStep));
    DWORD got = 0;
    if (ReadFile(file.get(), head.data() + filled, wanted, &got, nullptr) == FALSE) return std::nullopt;
    if (got == 0) break;  // the file became shorter meanwhile
    filled += got;
  }
  head.resize(filled);
  return head;
}

}  // namespace os
