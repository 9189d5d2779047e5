#include "os/library_search_win.h"

#include <windows.h>

namespace os {

void LoadLibrariesFromSystemFolderOnly() {
  using SetDirectories = BOOL(WINAPI*)(DWORD flags);
  const HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
  const auto set = reinterpret_cast<SetDirectories>(
      reinterpret_cast<void*>(GetProcAddress(kernel, "SetDefaultDllDirectories")));
  if (set) set(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

}  // namespace os
