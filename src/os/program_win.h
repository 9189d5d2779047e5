// The running program's own file on this machine.
#pragma once

#include "os/program.h"

namespace os {

class ProgramWin : public Program {
 public:
  std::string path() const override;
  std::string folder() const override;
  std::string commandLine() const override;
};

}  // namespace os
