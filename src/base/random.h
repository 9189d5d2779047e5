// The program's source of chance: a 24-bit linear congruential generator.
#pragma once

#include <cstdint>

namespace base {

class Random {
 public:
  // A number in [0, 1), one of 2^24.
  float next();

  // Mixes a clock reading into the state without forgetting the state: two reseeds with the same reading
  // (a clock that has not moved on) still lead to different numbers.
  void reseed(float secondsSinceMidnight);

 private:
  std::uint32_t state_ = 0x50000;
  std::uint32_t reseeds_ = 0;
};

}  // namespace base
