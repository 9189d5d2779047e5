// The machine's clocks, as an argument: only the _win file reads the real ones.
#pragma once

#include <cstdint>

namespace os {

// Wall-clock time in the user's time zone.
struct LocalTime {
  int year = 2000;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;
  int millisecond = 0;

  bool operator==(const LocalTime&) const = default;
};

// Single precision, as the rules for input and waits are written for it; restarts at 0 at midnight.
inline float SecondsSinceMidnight(const LocalTime& t) {
  return static_cast<float>(t.hour * 3600 + t.minute * 60 + t.second + t.millisecond / 1000.0);
}

class Clock {
 public:
  virtual ~Clock() = default;

  virtual LocalTime now() const = 0;

  // Milliseconds since some fixed moment; never goes back, whatever happens to the wall clock.
  virtual std::int64_t tickMs() const = 0;
};

}  // namespace os
