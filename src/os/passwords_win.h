// The password dialogs of this machine.
#pragma once

#include "os/passwords.h"

namespace os {

// Both libraries are bound at the call, so that the program starts where they are missing.
class PasswordsWin : public Passwords {
 public:
  bool verify(std::intptr_t window) override;
  void change(std::intptr_t window) override;
};

}  // namespace os
