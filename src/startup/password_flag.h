// The user's choice to protect the screen saver with a password.
#pragma once

#include <cstdint>
#include <string>

#include "os/machine_facts.h"

namespace startup {

// The value as text: a number with at least three digits, a text without its NUL. Empty for any other type.
std::string PasswordFlagText(const os::RegistryValue& value);

// The flag of the current user as text; empty where there is none.
std::string ReadPasswordFlag(os::MachineFacts& machine);

// The text as a number, read leniently; 0 = no password. A number beyond 16 bits becomes the nearest that
// fits: a flag of whatever size is a flag that is on.
std::int16_t PasswordFlagNumber(const std::string& text);

}  // namespace startup
