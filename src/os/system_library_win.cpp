#include "os/system_library_win.h"

#include <string>

namespace os {

void LoadLibrariesFromSystemFolderOnly() {
  using SetDirectories = BOOL(WINAPI*)(DWORD flags);
  const auto set = FindFunction<SetDirectories>(L"kernel32.dll", "SetDefaultDllDirectories");
  if (set) set(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

// By its full path, since the flag for the same purpose is unknown to systems without its update.
OwnedLibrary LoadSystemLibrary(const wchar_t* name) {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetSystemDirectoryW(path.data(), MAX_PATH));
  if (path.empty()) return {};
  path += L'\\';
  path += name;
  return OwnedLibrary(LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH));
}

}  // namespace os
