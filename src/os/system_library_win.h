// Libraries of the system that are loaded by name.
#pragma once

#include <windows.h>

#include "os/handles_win.h"

namespace os {

// From the system folder alone: a library of that name beside the program or in the current folder must never
// stand in for the system's. Null where the system has none.
OwnedLibrary LoadSystemLibrary(const wchar_t* name);

// A function of a library; null where it has none, or where there is no library.
template <typename Function>
Function FindFunction(const OwnedLibrary& library, const char* name) {
  if (!library) return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library.get(), name)));
}

}  // namespace os
