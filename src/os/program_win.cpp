#include "os/program_win.h"

#include <windows.h>

#include "os/utf16_win.h"

namespace os {

std::string ProgramWin::path() const {
  // A path that does not fit is cut to the buffer, so the buffer grows until there is room to spare.
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return FromWide(path);
    }
    path.resize(path.size() * 2);
  }
}

std::string ProgramWin::folder() const { return FolderOf(path()); }

void ProgramWin::enterFolder() const { SetCurrentDirectoryW(ToWide(folder()).c_str()); }

std::string ProgramWin::commandLine() const { return FromWide(GetCommandLineW()); }

}  // namespace os
