// The note that a screen saver is running, on this machine.
#pragma once

#include "os/system_flags.h"

namespace os {

class SystemFlagsWin : public SystemFlags {
 public:
  void setScreenSaverRunning(bool running) override;
};

}  // namespace os
