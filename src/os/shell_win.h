// The shell of this machine.
#pragma once

#include "os/shell.h"

namespace os {

class ShellWin : public Shell {
 public:
  void open(const std::string& target) override;
};

}  // namespace os
