#include "os/files_win.h"

#include <windows.h>

#include <algorithm>
#include <atomic>

#include "os/file_handle_win.h"
#include "os/long_path.h"
#include "os/utf16_win.h"
#include "os/wide_path_win.h"

namespace os {

namespace {

constexpr DWORD kStep = 1U << 26;             // bytes of one read or write
constexpr LONGLONG kLargestFile = 1LL << 30;  // more is no file of ours, and no picture

// Not every system refuses to put another file in the place of one that may only be read.
bool MayOnlyBeRead(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

bool WriteAll(HANDLE file, std::string_view content) {
  while (!content.empty()) {
    const DWORD size = static_cast<DWORD>(std::min<std::size_t>(content.size(), kStep));
    DWORD written = 0;
    if (WriteFile(file, content.data(), size, &written, nullptr) == FALSE || written == 0) return false;
    content.remove_prefix(written);
  }
  return true;
}

bool WriteNew(const std::wstring& path, std::string_view content) {
  const FileHandle file(
      CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  return file.isOpen() && WriteAll(file.get(), content) && FlushFileBuffers(file.get()) != FALSE;
}

// A name that no other process and no other call of this one uses at the same time.
std::wstring NameBeside() {
  static std::atomic<unsigned> count{0};
  return L".new-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
}

}  // namespace

std::optional<std::string> FilesWin::read(const std::string& path) {
  const FileHandle file(CreateFileW(WidePath(path).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  LARGE_INTEGER size{};
  if (!file.isOpen() || GetFileSizeEx(file.get(), &size) == FALSE || size.QuadPart > kLargestFile)
    return std::nullopt;
  std::string content(static_cast<std::size_t>(size.QuadPart), '\0');
  std::size_t filled = 0;
  while (filled < content.size()) {
    const DWORD wanted = static_cast<DWORD>(std::min<std::size_t>(content.size() - filled, kStep));
    DWORD got = 0;
    if (ReadFile(file.get(), content.data() + filled, wanted, &got, nullptr) == FALSE) return std::nullopt;
    if (got == 0) break;  // the file became shorter meanwhile
    filled += got;
  }
  content.resize(filled);
  return content;
}

// MoveFileEx replaces the name in one step of the file system. ReplaceFile would carry the old file's
// attributes over, but by its documentation it can fail with the old file gone.
bool FilesWin::replace(const std::string& path, std::string_view content) {
  const std::wstring nameBeside = NameBeside();
  const std::wstring target = WidePath(path, nameBeside.size());
  if (MayOnlyBeRead(target)) return false;
  const std::wstring beside = target + nameBeside;
  if (WriteNew(beside, content) && MoveFileExW(beside.c_str(), target.c_str(),
                                               MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE) {
    return true;
  }
  DeleteFileW(beside.c_str());
  return false;
}

bool FilesWin::exists(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(WidePath(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool FilesWin::copy(const std::string& from, const std::string& to) {
  return CopyFileW(WidePath(from).c_str(), WidePath(to).c_str(), FALSE) != FALSE;
}

bool FilesWin::canWriteIn(const std::string& folder) {
  const std::wstring name = L"\\lumora" + NameBeside();
  const std::wstring path = WidePath(folder, name.size()) + name;
  const FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
  return file.isOpen();
}

std::vector<std::string> FilesWin::filesIn(const std::string& folder) {
  std::vector<std::string> names;
  constexpr std::wstring_view kAll = L"\\*";
  WIN32_FIND_DATAW entry{};
  const HANDLE search =
      FindFirstFileExW((WidePath(folder, kAll.size()) + kAll.data()).c_str(), FindExInfoBasic, &entry,
                       FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names.push_back(FromWide(entry.cFileName));
  } while (FindNextFileW(search, &entry) != FALSE);
  FindClose(search);
  return names;
}

std::string FilesWin::shortPath(const std::string& path) {
  const std::wstring wide = WidePath(path);
  const DWORD size = GetShortPathNameW(wide.c_str(), nullptr, 0);
  std::wstring shorter(size, L'\0');
  shorter.resize(GetShortPathNameW(wide.c_str(), shorter.data(), size));
  return shorter.empty() ? path : FromWide(PlainPath(shorter));
}

}  // namespace os
