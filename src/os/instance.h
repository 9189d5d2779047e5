// The mark that one copy of the program is running in the user's session.
#pragma once

#include <memory>
#include <string>

namespace os {

class Instance {
 public:
  virtual ~Instance() = default;

  // Sets the mark; false when another copy has set it already. Holds until release() or the end of the
  // process, however that comes about.
  virtual bool becomeOnly() = 0;

  // Lets another copy start. Does nothing when the mark is not held.
  virtual void release() = 0;
};

// The mark of this machine. `name` without a backslash; copies that share it exclude each other.
std::unique_ptr<Instance> MakeInstance(const std::string& name);

}  // namespace os
