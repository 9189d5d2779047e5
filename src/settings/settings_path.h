// Where the settings file and the program's other files lie.
#pragma once

#include <string>

namespace settings {

// The path of a file in the program's own folder, which may or may not end in a backslash.
inline std::string InProgramFolder(const std::string& programFolder, const std::string& name) {
  return programFolder.ends_with('\\') ? programFolder + name : programFolder + '\\' + name;
}

// The settings file is addressed by this full path alone; no other folder is searched.
inline std::string IniPath(const std::string& programFolder) {
  return InProgramFolder(programFolder, "zbfaone.ini");
}

}  // namespace settings
