// The system's shell, which knows what opens what.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace os {

class Shell {
 public:
  virtual ~Shell() = default;

  // Opens a file path or a web address with its default program. Gives the shell's result, of which more than
  // 32 means that something was opened.
  virtual std::intptr_t open(const std::string& target) = 0;

  // Opens the folder of a file, in which the file is selected. A path without a folder is one of the folder
  // in which the program works.
  virtual void openFolderOf(const std::string& path) = 0;
};

// The shell of this machine.
std::unique_ptr<Shell> MakeShell();

}  // namespace os
