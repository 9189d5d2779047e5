// A shell that remembers what it was to open.
#pragma once

#include <string>
#include <vector>

#include "os/shell.h"

namespace support {

class ShellRecorder : public os::Shell {
 public:
  std::vector<std::string> opened;

  std::intptr_t open(const std::string& target) override {
    opened.push_back(target);
    return 42;  // more than 32: something was opened
  }

  void openFolderOf(const std::string& path) override { opened.push_back("folder of " + path); }
};

}  // namespace support
