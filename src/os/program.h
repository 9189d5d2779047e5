// The running program's own file.
#pragma once

#include <string>

namespace os {

class Program {
 public:
  virtual ~Program() = default;

  // Full path of the executable.
  virtual std::string path() const = 0;

  // Its folder, without a backslash at the end unless it is a drive's root ("C:\").
  virtual std::string folder() const = 0;

  // The whole command line as it was given, with the program's name in front.
  virtual std::string commandLine() const = 0;
};

// The folder part of a path, by the rule of Program::folder(); empty for a bare name.
std::string FolderOf(const std::string& path);

}  // namespace os
