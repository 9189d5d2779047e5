#include "os/folder_reader_win.h"

#include <algorithm>

#include "base/natural_order.h"
#include "os/folder_watch_win.h"
#include "os/open_file_win.h"
#include "os/paths.h"
#include "os/picture_endings_win.h"
#include "os/system_library_win.h"
#include "os/utf16_win.h"

namespace os {

namespace {

constexpr DWORD kNotShown = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
constexpr DWORD kLeadsElsewhere = 0x20000000;  // the bit of a reparse tag that stands for another name

FolderEntry EntryOf(const WIN32_FIND_DATAW& found) {
  const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  // Folders that a cloud service fills when they are opened have a reparse tag as well, but lie where they
  // are.
  const bool isLink = isFolder && (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                      (found.dwReserved0 & kLeadsElsewhere) != 0;
  return {FromWide(found.cFileName), isFolder, isLink};
}

bool IsItselfOrAbove(const wchar_t* name) {
  return name[0] == L'.' && (name[1] == L'\0' || (name[1] == L'.' && name[2] == L'\0'));
}

}  // namespace

// The library stays loaded, since a thread that hangs in the system may come back late.
FolderReaderWin::FolderReaderWin() {
  static const OwnedLibrary shellHelpers = LoadSystemLibrary(L"shlwapi.dll");
  compareLogically_ = FindFunction<CompareLogically>(shellHelpers.get(), "StrCmpLogicalW");
}

std::optional<std::vector<FolderEntry>> FolderReaderWin::read(const std::string& folder) {
  constexpr std::wstring_view kAll = L"\\*";
  std::wstring pattern = WidePath(folder, kAll.size());
  if (pattern.ends_with(L'\\')) pattern.pop_back();
  pattern += kAll;
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found, FindExSearchNameMatch,
                                         nullptr, FIND_FIRST_EX_LARGE_FETCH);
  std::vector<FolderEntry> entries;
  if (search == INVALID_HANDLE_VALUE) {
    // A drive's empty root has not even the entries that stand for itself.
    if (GetLastError() == ERROR_FILE_NOT_FOUND) return entries;
    return std::nullopt;
  }
  do {
    if ((found.dwFileAttributes & kNotShown) == 0 && !IsItselfOrAbove(found.cFileName))
      entries.push_back(EntryOf(found));
  } while (FindNextFileW(search, &found) != FALSE);
  const bool whole = GetLastError() == ERROR_NO_MORE_FILES;
  FindClose(search);
  return whole ? std::optional(std::move(entries)) : std::nullopt;
}

std::optional<std::string> FolderReaderWin::finalPath(const std::string& folder) {
  const FileHandle handle(CreateFileW(WidePath(folder).c_str(), 0,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!handle.isOpen()) return std::nullopt;
  std::wstring path(GetFinalPathNameByHandleW(handle.get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
  path.resize(GetFinalPathNameByHandleW(handle.get(), path.data(), static_cast<DWORD>(path.size()),
                                        FILE_NAME_NORMALIZED));
  if (path.empty()) return std::nullopt;
  return FromWide(PlainPath(path));
}

void FolderReaderWin::sortNames(std::vector<std::string>& names) {
  if (!compareLogically_) {
    std::sort(names.begin(), names.end(),
              [](const std::string& a, const std::string& b) { return base::CompareNaturally(a, b) < 0; });
    return;
  }
  struct Sorted {
    std::wstring wide;
    std::string name;
  };
  std::vector<Sorted> sorted;
  sorted.reserve(names.size());
  for (std::string& name : names) {
    std::wstring wide = ToWide(name);
    sorted.push_back({std::move(wide), std::move(name)});
  }
  std::stable_sort(sorted.begin(), sorted.end(), [this](const Sorted& a, const Sorted& b) {
    return compareLogically_(a.wide.c_str(), b.wide.c_str()) < 0;
  });
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = std::move(sorted[i].name);
}

std::vector<std::string> FolderReaderWin::pictureEndings() { return DecodersPictureEndings(); }

std::unique_ptr<FolderWatch> FolderReaderWin::watch(const std::string& folder, bool subfolders) {
  return std::make_unique<FolderWatchWin>(folder, subfolders);
}

}  // namespace os
