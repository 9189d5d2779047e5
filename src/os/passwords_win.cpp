#include "os/passwords_win.h"

#include "os/system_library_win.h"

namespace os {

namespace {

using VerifyPassword = BOOL(WINAPI*)(HWND window);
using ChangePassword = DWORD(WINAPI*)(LPCSTR provider, HWND window, UINT reserved1, UINT reserved2);

}  // namespace

bool PasswordsWin::verify(std::intptr_t window) {
  const OwnedLibrary library = LoadSystemLibrary(L"password.cpl");
  const auto verifyPassword = FindFunction<VerifyPassword>(library, "VerifyScreenSavePwd");
  return !verifyPassword || verifyPassword(reinterpret_cast<HWND>(window)) != FALSE;
}

void PasswordsWin::change(std::intptr_t window) {
  const OwnedLibrary library = LoadSystemLibrary(L"mpr.dll");
  const auto changePassword = FindFunction<ChangePassword>(library, "PwdChangePasswordA");
  if (changePassword) changePassword("SCRSAVE", reinterpret_cast<HWND>(window), 0, 0);
}

}  // namespace os
