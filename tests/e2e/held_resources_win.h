// What a process holds of the system.
#pragma once

#include <windows.h>

#include <cstddef>

namespace e2e {

struct HeldResources {
  std::size_t privateBytes = 0;
  DWORD kernelHandles = 0;
  DWORD gdiObjects = 0;
  DWORD userObjects = 0;
};

// Wine does not count GDI and USER objects of another process: there the GDI objects are counted in the
// process's own table, and of the USER objects only the windows.
HeldResources ReadHeldResources(HANDLE process, DWORD processId);

}  // namespace e2e
