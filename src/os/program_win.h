// The running program's own file on this machine.
#pragma once

#include "os/program.h"

namespace os {

class ProgramWin : public Program {
 public:
  std::string path() const override;
  std::string folder() const override;
  std::string commandLine() const override;

  // Makes its folder the current one: a file name without a folder then never means a file that lies where
  // the program happened to be started.
  void enterFolder() const;
};

}  // namespace os
