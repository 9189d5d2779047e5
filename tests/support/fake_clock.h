// A clock that is turned by hand.
#pragma once

#include <cstdint>

#include "os/clock.h"

namespace support {

class FakeClock : public os::Clock {
 public:
  os::LocalTime now() const override { return now_; }
  std::int64_t tickMs() const override { return tickMs_; }

  void set(const os::LocalTime& now) { now_ = now; }

  // Moves both clocks on.
  void advance(std::int64_t ms);

 private:
  os::LocalTime now_{2026, 6, 15, 12, 0, 0, 0};
  std::int64_t tickMs_ = 1000;
};

}  // namespace support
