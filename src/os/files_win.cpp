#include "os/files_win.h"

#include <windows.h>

#include <shlobj.h>

#include <algorithm>
#include <atomic>
#include <cwchar>

#include "os/folder_listing_win.h"
#include "os/open_file_win.h"
#include "os/paths.h"
#include "os/utf16_win.h"

namespace os {

namespace {

constexpr DWORD kStep = 1U << 26;                 // bytes of one read or write
constexpr std::uint64_t kLargestFile = 1U << 30;  // more is no file of ours, and no picture

constexpr DWORD kBetweenAttemptsMs = 20;
constexpr const wchar_t* kBeside = L".new-";  // what the name of a file beside another one adds to it

std::optional<std::uint64_t> SizeOf(const FileHandle& file) {
  LARGE_INTEGER size{};
  if (!file.isOpen() || GetFileSizeEx(file.get(), &size) == FALSE) return std::nullopt;
  return static_cast<std::uint64_t>(size.QuadPart);
}

// The first `size` bytes of a file that was just opened; fewer when it became shorter meanwhile.
std::optional<std::string> ReadFront(const FileHandle& file, std::size_t size) {
  std::string content(size, '\0');
  std::size_t filled = 0;
  while (filled < size) {
    const DWORD wanted = static_cast<DWORD>(std::min<std::size_t>(size - filled, kStep));
    DWORD got = 0;
    if (ReadFile(file.get(), content.data() + filled, wanted, &got, nullptr) == FALSE) return std::nullopt;
    if (got == 0) break;
    filled += got;
  }
  content.resize(filled);
  return content;
}

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
  return kBeside + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
}

bool IsHeldByAnother(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_ACCESS_DENIED ||
         error == ERROR_USER_MAPPED_FILE;
}

// MoveFileEx replaces the name in one step of the file system. ReplaceFile would carry the old file's
// attributes over, but by its documentation it can fail with the old file gone.
bool MoveOver(const std::wstring& from, const std::wstring& target, int patienceMs) {
  const ULONGLONG start = GetTickCount64();
  while (MoveFileExW(from.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) ==
         FALSE) {
    if (!IsHeldByAnother(GetLastError()) || GetTickCount64() - start >= static_cast<ULONGLONG>(patienceMs))
      return false;
    Sleep(kBetweenAttemptsMs);
  }
  return true;
}

// What runs of this program that were killed while they wrote have left beside the target. Those that write
// the same file exclude each other, so none of it is in use.
void RemoveLeftovers(const std::wstring& target) {
  const std::wstring folder = target.substr(0, target.find_last_of(L'\\') + 1);
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW((target + kBeside + L"*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    DeleteFileW((folder + found.cFileName).c_str());
  } while (FindNextFileW(search, &found) != FALSE);
  FindClose(search);
}

std::vector<std::string> Names(const std::string& folder, bool folders) {
  std::vector<std::string> names;
  auto entries = ListFolder(folder);
  if (!entries) return names;
  for (FolderEntry& entry : *entries) {
    if (entry.isFolder == folders) names.push_back(std::move(entry.name));
  }
  return names;
}

}  // namespace

std::optional<std::string> FilesWin::read(const std::string& path) {
  const FileHandle file = OpenForReading(path);
  const std::optional<std::uint64_t> size = SizeOf(file);
  if (!size || *size > kLargestFile) return std::nullopt;
  return ReadFront(file, static_cast<std::size_t>(*size));
}

std::optional<std::string> FilesWin::readHead(const std::string& path, std::size_t limit) {
  const FileHandle file = OpenForReading(path);
  const std::optional<std::uint64_t> size = SizeOf(file);
  if (!size) return std::nullopt;
  return ReadFront(file, static_cast<std::size_t>(std::min<std::uint64_t>(*size, limit)));
}

bool FilesWin::replace(const std::string& path, std::string_view content) {
  const std::wstring nameBeside = NameBeside();
  const std::wstring target = WidePath(path, nameBeside.size());
  if (MayOnlyBeRead(target)) return false;
  RemoveLeftovers(target);
  const std::wstring beside = target + nameBeside;
  if (WriteNew(beside, content) && MoveOver(beside, target, patienceMs_)) return true;
  DeleteFileW(beside.c_str());
  return false;
}

bool FilesWin::exists(const std::string& path) { return IsFile(path); }

// The time zone's rules for the day on which the file was written, not those of today.
std::optional<LocalTime> FilesWin::changedAt(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA found{};
  SYSTEMTIME universal{};
  SYSTEMTIME local{};
  if (GetFileAttributesExW(WidePath(path).c_str(), GetFileExInfoStandard, &found) == FALSE ||
      (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ||
      FileTimeToSystemTime(&found.ftLastWriteTime, &universal) == FALSE ||
      SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) == FALSE) {
    return std::nullopt;
  }
  return LocalTime{local.wYear,   local.wMonth,  local.wDay,         local.wHour,
                   local.wMinute, local.wSecond, local.wMilliseconds};
}

bool FilesWin::canWriteIn(const std::string& folder) {
  const std::wstring name = L"\\lumora" + NameBeside();
  const std::wstring path = WidePath(folder, name.size()) + name;
  const FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
  return file.isOpen();
}

std::vector<std::string> FilesWin::foldersIn(const std::string& folder) { return Names(folder, true); }

std::vector<std::string> FilesWin::filesIn(const std::string& folder) { return Names(folder, false); }

std::vector<std::string> FilesWin::drives() {
  std::wstring roots(GetLogicalDriveStringsW(0, nullptr), L'\0');
  roots.resize(GetLogicalDriveStringsW(static_cast<DWORD>(roots.size()), roots.data()));
  std::vector<std::string> drives;
  for (const wchar_t* root = roots.c_str(); *root; root += std::wcslen(root) + 1)
    drives.push_back(FromWide(root));
  return drives;
}

std::string FilesWin::currentFolder() {
  std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
  folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
  return FromWide(folder);
}

bool FilesWin::enterFolder(const std::string& folder) {
  return !folder.empty() && SetCurrentDirectoryW(ToWide(folder).c_str()) != FALSE;
}

std::string FilesWin::picturesFolder() {
  wchar_t* path = nullptr;
  std::string folder;
  if (SUCCEEDED(SHGetKnownFolderPath(FOLDERID_Pictures, 0, nullptr, &path))) folder = FromWide(path);
  CoTaskMemFree(path);
  return folder;
}

void FilesWin::sortNames(std::vector<std::string>& names) { SortAsShown(names); }

std::string FilesWin::shortPath(const std::string& path) {
  const std::wstring wide = WidePath(path);
  const DWORD size = GetShortPathNameW(wide.c_str(), nullptr, 0);
  std::wstring shorter(size, L'\0');
  shorter.resize(GetShortPathNameW(wide.c_str(), shorter.data(), size));
  return shorter.empty() ? path : FromWide(PlainPath(shorter));
}

bool IsReadOnlyFile(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(WidePath(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

}  // namespace os
