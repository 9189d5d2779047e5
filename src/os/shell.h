// The system's shell, which knows what opens what.
#pragma once

#include <string>

namespace os {

class Shell {
 public:
  virtual ~Shell() = default;

  // Opens a file path or a web address with its default program. What becomes of it is the shell's business.
  virtual void open(const std::string& target) = 0;
};

}  // namespace os
