#include <windows.h>

#include <vector>

#include "os/utf16_win.h"
#include "package/files.h"
#include "package/user_state.h"

namespace package {

namespace {

void ReadKey(HKEY parent, const std::wstring& path, const std::wstring& name, UserState& state) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  state[name];
  std::vector<wchar_t> text(16384);
  std::vector<BYTE> data(1 << 20);
  for (DWORD i = 0;; ++i) {
    auto letters = static_cast<DWORD>(text.size());
    auto bytes = static_cast<DWORD>(data.size());
    DWORD type = 0;
    if (RegEnumValueW(key, i, text.data(), &letters, nullptr, &type, data.data(), &bytes) != ERROR_SUCCESS)
      break;
    state[name + L"\\" + text.data()] =
        std::to_string(type) + ":" + std::string(data.begin(), data.begin() + bytes);
  }
  for (DWORD i = 0;; ++i) {
    auto letters = static_cast<DWORD>(text.size());
    if (RegEnumKeyExW(key, i, text.data(), &letters, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
      break;
    const std::wstring child = text.data();
    // What the system counts while programs run.
    if (child == L"Volatile Environment" || child == L"SessionInfo") continue;
    ReadKey(key, child, name + L"\\" + child, state);
  }
  RegCloseKey(key);
}

void ReadFolder(const std::wstring& folder, const std::wstring& temporary, UserState& state) {
  WIN32_FIND_DATAW entry{};
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::wstring name = entry.cFileName;
    if (name == L"." || name == L"..") continue;
    const std::wstring path = folder + L"\\" + name;
    if (_wcsicmp(path.c_str(), temporary.c_str()) == 0) continue;
    if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
      state[path];
      if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT)) ReadFolder(path, temporary, state);
    } else {
      state[path] = ReadWholeFile(path);
    }
  } while (FindNextFileW(search, &entry));
  FindClose(search);
}

}  // namespace

UserState ReadUserState() {
  UserState state;
  ReadKey(HKEY_CURRENT_USER, L"", L"HKCU", state);
  ReadKey(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall", L"HKLM apps",
          state);
  ReadFolder(ProfileFolder(), TemporaryFolder(), state);
  return state;
}

std::string Difference(const UserState& before, const UserState& after) {
  std::string text;
  for (const auto& [name, content] : before) {
    const auto found = after.find(name);
    if (found == after.end()) text += "gone: " + os::FromWide(name) + "\n";
    if (found != after.end() && found->second != content) text += "changed: " + os::FromWide(name) + "\n";
  }
  for (const auto& [name, content] : after) {
    if (!before.contains(name)) text += "new: " + os::FromWide(name) + "\n";
  }
  return text;
}

}  // namespace package
