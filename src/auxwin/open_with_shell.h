// Files and web addresses opened with whatever the user's system opens them with.
#pragma once

#include <string>

#include "os/shell.h"

namespace auxwin {

// The maker's page on the web.
inline constexpr char kMakersPage[] = "https://www.lumora.example/";

// A missing file or an unreachable page is the shell's to report.
inline std::intptr_t OpenWithShell(os::Shell& shell, const std::string& target) { return shell.open(target); }

}  // namespace auxwin
