// Where the settings file lies.
#pragma once

#include <string>

#include "os/paths.h"

namespace settings {

// The settings file is addressed by this full path alone; no other folder is searched.
inline std::string IniPath(const std::string& programFolder) {
  return os::JoinPath(programFolder, "zbfaone.ini");
}

}  // namespace settings
