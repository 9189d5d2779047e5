#include "os/passwords.h"

#include "os/system_library_win.h"

namespace os {

namespace {

using VerifyPassword = BOOL(WINAPI*)(HWND window);
using ChangePassword = DWORD(WINAPI*)(LPCSTR provider, HWND window, UINT reserved1, UINT reserved2);

// Both libraries are bound at the call, so that the program starts where they are missing.
class PasswordsWin final : public Passwords {
 public:
  bool verify(std::intptr_t window) override {
    const OwnedLibrary library = LoadSystemLibrary(L"password.cpl");
    const auto verifyPassword = FindFunction<VerifyPassword>(library.get(), "VerifyScreenSavePwd");
    return !verifyPassword || verifyPassword(reinterpret_cast<HWND>(window)) != FALSE;
  }

  void change(std::intptr_t window) override {
    const OwnedLibrary library = LoadSystemLibrary(L"mpr.dll");
    const auto changePassword = FindFunction<ChangePassword>(library.get(), "PwdChangePasswordA");
    if (changePassword) changePassword("SCRSAVE", reinterpret_cast<HWND>(window), 0, 0);
  }
};

}  // namespace

std::unique_ptr<Passwords> MakePasswords() { return std::make_unique<PasswordsWin>(); }

}  // namespace os
