#include "os/shell_win.h"

#include <windows.h>

#include <shellapi.h>

#include "os/utf16_win.h"

namespace os {

void ShellWin::open(const std::string& target) {
  ShellExecuteW(nullptr, nullptr, ToWide(target).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace os
