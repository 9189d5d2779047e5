// Remembers what the system was told of a running saver.
#pragma once

#include <vector>

#include "os/system_flags.h"

namespace support {

class FakeSystemFlags : public os::SystemFlags {
 public:
  void setScreenSaverRunning(bool running) override { calls.push_back(running); }
  std::vector<bool> calls;
};

}  // namespace support
