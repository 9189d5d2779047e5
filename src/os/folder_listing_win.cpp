#include "os/folder_listing_win.h"

#include <windows.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/natural_order.h"
#include "os/open_file_win.h"
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

std::optional<std::vector<FolderEntry>> ListFolder(const std::string& folder) {
  constexpr std::wstring_view kAll = L"\\*";
  if (folder.empty()) return std::nullopt;
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

// The library stays loaded, since a thread that hangs in the system may come back late.
void SortAsShown(std::vector<std::string>& names) {
  static const OwnedLibrary shellHelpers = LoadSystemLibrary(L"shlwapi.dll");
  static const auto compare =
      FindFunction<int(WINAPI*)(PCWSTR, PCWSTR)>(shellHelpers.get(), "StrCmpLogicalW");
  if (!compare) {
    std::ranges::sort(names, [](const auto& a, const auto& b) { return base::CompareNaturally(a, b) < 0; });
    return;
  }
  std::vector<std::wstring> wide;
  wide.reserve(names.size());
  for (const std::string& name : names) wide.push_back(ToWide(name));
  std::ranges::sort(wide, [](const std::wstring& a, const std::wstring& b) {
    const int order = compare(a.c_str(), b.c_str());
    return order != 0 ? order < 0 : a < b;
  });
  std::ranges::transform(wide, names.begin(), [](const std::wstring& name) { return FromWide(name); });
}

}  // namespace os
