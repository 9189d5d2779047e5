// Libraries of the system and functions in them that are looked up by name.
#pragma once

#include <windows.h>

#include "os/handles_win.h"

namespace os {

// From now on libraries that are loaded by name come from the system's folder alone, so that none beside the
// program or in the current folder stands in for one of the system's. Windows 7 knows this from its update
// KB2533623 on; without it nothing changes.
void LoadLibrariesFromSystemFolderOnly();

// A library from the system folder, and from nowhere else. Null where the system has none.
OwnedLibrary LoadSystemLibrary(const wchar_t* name);

// A function of a library, of pointer type `Function`; null where it has none, or where there is no library.
template <typename Function>
Function FindFunction(HMODULE library, const char* name) {
  if (!library) return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

// A function of a library that every program has loaded (kernel32, user32, gdi32).
template <typename Function>
Function FindFunction(const wchar_t* loadedLibrary, const char* name) {
  return FindFunction<Function>(GetModuleHandleW(loadedLibrary), name);
}

}  // namespace os
