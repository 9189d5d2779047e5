// The version query of the running system.
#pragma once

#include "os/system_version.h"

namespace os {

class SystemVersionWin : public SystemVersion {
 public:
  std::int32_t platformId() override;
};

}  // namespace os
