#include "os/folders_win.h"

#include <windows.h>

#include <cwchar>

#include "os/handles_win.h"
#include "os/utf16_win.h"

namespace os {

namespace {

// Visible entries of a folder: its folders, or its files.
std::vector<std::string> Entries(const std::string& folder, bool folders) {
  std::vector<std::string> names;
  std::wstring pattern = ToWide(folder);
  if (pattern.empty()) return names;
  if (pattern.back() != L'\\') pattern += L'\\';
  pattern += L'*';
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found, FindExSearchNameMatch,
                                         nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    const std::wstring_view name = found.cFileName;
    const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    const bool hidden = (found.dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
    if (isFolder == folders && !hidden && name != L"." && name != L"..") names.push_back(FromWide(name));
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return names;
}

}  // namespace

std::vector<std::string> FoldersWin::drives() {
  std::wstring roots(GetLogicalDriveStringsW(0, nullptr), L'\0');
  roots.resize(GetLogicalDriveStringsW(static_cast<DWORD>(roots.size()), roots.data()));
  std::vector<std::string> drives;
  for (const wchar_t* root = roots.c_str(); *root; root += std::wcslen(root) + 1)
    drives.push_back(FromWide(root));
  return drives;
}

std::string FoldersWin::currentFolder() {
  std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
  folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
  return FromWide(folder);
}

std::vector<std::string> FoldersWin::foldersIn(const std::string& folder) { return Entries(folder, true); }

std::vector<std::string> FoldersWin::filesIn(const std::string& folder) { return Entries(folder, false); }

}  // namespace os
