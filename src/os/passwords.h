// The system's own dialogs for the screen saver password, which only the older family brings along.
#pragma once

#include <cstdint>
#include <memory>

namespace os {

class Passwords {
 public:
  virtual ~Passwords() = default;

  // Asks for the password in a dialog over `window`; true when it was right. Events run meanwhile.
  // True as well where the system has no such dialog: then nothing is there that could ever accept a
  // password, and refusing would lock the user out of the machine for good.
  virtual bool verify(std::intptr_t window) = 0;

  // Lets the user change the password in a dialog over `window`. Does nothing where there is no such dialog.
  virtual void change(std::intptr_t window) = 0;
};

// Those of this machine.
std::unique_ptr<Passwords> MakePasswords();

}  // namespace os
