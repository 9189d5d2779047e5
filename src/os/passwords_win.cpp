#include "os/passwords_win.h"

#include <string>

#include "os/handles_win.h"

namespace os {

namespace {

using VerifyPassword = BOOL(WINAPI*)(HWND window);
using ChangePassword = DWORD(WINAPI*)(LPCSTR provider, HWND window, UINT reserved1, UINT reserved2);

// From the system folder alone: a library of that name beside the program or in the current folder must never
// stand in for the one that guards the screen. By its full path, since the flag for the same purpose is
// unknown to systems without its update.
OwnedLibrary LoadFromSystemFolder(const wchar_t* name) {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetSystemDirectoryW(path.data(), MAX_PATH));
  if (path.empty()) return {};
  path += L'\\';
  path += name;
  return OwnedLibrary(LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH));
}

template <typename Function>
Function Find(const OwnedLibrary& library, const char* name) {
  if (!library) return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library.get(), name)));
}

}  // namespace

bool PasswordsWin::verify(std::intptr_t window) {
  const OwnedLibrary library = LoadFromSystemFolder(L"password.cpl");
  const auto verifyPassword = Find<VerifyPassword>(library, "VerifyScreenSavePwd");
  return !verifyPassword || verifyPassword(reinterpret_cast<HWND>(window)) != FALSE;
}

void PasswordsWin::change(std::intptr_t window) {
  const OwnedLibrary library = LoadFromSystemFolder(L"mpr.dll");
  const auto changePassword = Find<ChangePassword>(library, "PwdChangePasswordA");
  if (changePassword) changePassword("SCRSAVE", reinterpret_cast<HWND>(window), 0, 0);
}

}  // namespace os
