// The current user's registry on this machine.
#pragma once

#include "os/registry.h"

namespace os {

class RegistryWin : public Registry {
 public:
  std::optional<RegistryValue> readUserValue(const std::string& key, const std::string& name) override;
};

}  // namespace os
