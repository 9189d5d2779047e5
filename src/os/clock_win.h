// The clocks of this machine.
#pragma once

#include "os/clock.h"

namespace os {

class ClockWin : public Clock {
 public:
  ClockWin();

  LocalTime now() const override;

  // By the performance counter: the system's tick count moves in steps as long as a frame.
  std::int64_t tickMs() const override;

 private:
  std::int64_t countsPerSecond_;
};

}  // namespace os
