#include <windows.h>

#include <shellapi.h>

#include "os/open_file_win.h"
#include "os/paths.h"
#include "os/shell.h"
#include "os/utf16_win.h"

namespace os {

namespace {

std::wstring WindowsFolder() {
  std::wstring folder(GetWindowsDirectoryW(nullptr, 0), L'\0');
  folder.resize(GetWindowsDirectoryW(folder.data(), static_cast<UINT>(folder.size())));
  return folder;
}

class ShellWin final : public Shell {
 public:
  std::intptr_t open(const std::string& target) override {
    return reinterpret_cast<std::intptr_t>(
        ShellExecuteW(nullptr, nullptr, ToWide(target).c_str(), nullptr, nullptr, SW_SHOWNORMAL));
  }

  // The system's own program for folders, by its whole path, so that no other of its name is taken.
  void openFolderOf(const std::string& path) override {
    const std::wstring file = PlainPath(FullPath(ToWide(path)));
    ShellExecuteW(nullptr, nullptr, (WindowsFolder() + L"\\explorer.exe").c_str(),
                  (L"/select,\"" + file + L"\"").c_str(), nullptr, SW_SHOWNORMAL);
  }
};

}  // namespace

std::unique_ptr<Shell> MakeShell() { return std::make_unique<ShellWin>(); }

}  // namespace os
