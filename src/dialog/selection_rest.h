// Whether a list's selection rests or is running over rows.
#pragma once

#include <functional>

#include "forms/timer.h"
#include "os/event_loop.h"

namespace dialog {

// While an arrow key is held down the selection moves many times a second, faster than large photos can be
// decoded. What is shown of the selected row waits until the selection rests; the rows that it passed are
// skipped. A selection that comes out of rest is shown without delay.
class SelectionRest {
 public:
  // A held key repeats every 30 to 50 milliseconds; hardly anybody presses keys much faster than this.
  static constexpr int kRestMs = 120;

  SelectionRest(os::EventLoop& loop, std::function<void()> onRest);

  // The selection has moved. True when it had been resting: what it stands on is shown now. Otherwise onRest
  // is called once it has not moved for the time above.
  bool moved();

  // The selection rests: what waited for that is forgotten, and the next move is shown without delay.
  void settle();

 private:
  forms::Timer timer_;
  std::function<void()> onRest_;
  bool waiting_ = false;
};

}  // namespace dialog
