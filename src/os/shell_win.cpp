#include <windows.h>

#include <shellapi.h>

#include "os/shell.h"
#include "os/utf16_win.h"

namespace os {

namespace {

class ShellWin final : public Shell {
 public:
  std::intptr_t open(const std::string& target) override {
    return reinterpret_cast<std::intptr_t>(
        ShellExecuteW(nullptr, nullptr, ToWide(target).c_str(), nullptr, nullptr, SW_SHOWNORMAL));
  }
};

}  // namespace

std::unique_ptr<Shell> MakeShell() { return std::make_unique<ShellWin>(); }

}  // namespace os
