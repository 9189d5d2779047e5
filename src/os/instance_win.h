// The program's mark among the named objects of the user's session.
#pragma once

#include <string>

#include "os/handles_win.h"
#include "os/instance.h"

namespace os {

class InstanceWin : public Instance {
 public:
  // `name` without a backslash; copies that share it exclude each other.
  explicit InstanceWin(std::string name);

  bool becomeOnly() override;
  void release() override;

 private:
  std::string name_;
  OwnedHandle mark_;
};

}  // namespace os
