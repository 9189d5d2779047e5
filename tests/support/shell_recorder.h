// A shell that remembers what it was to open.
#pragma once

#include <string>
#include <vector>

#include "os/shell.h"

namespace support {

class ShellRecorder : public os::Shell {
 public:
  std::vector<std::string> opened;

  void open(const std::string& target) override { opened.push_back(target); }
};

}  // namespace support
