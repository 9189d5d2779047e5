// The share of a paced effect's frames that come in time.
#pragma once

#include <functional>
#include <memory>

#include "os/event_loop.h"

namespace bench {

// Runs effect `number` at 1920 x 1080 for two seconds, and gives how many of its frames were done before the
// next one was due, of 60 a second. `prepare` may start what is to run beside it, on threads or in the loop,
// and gives what keeps that alive.
double FramesInTime(int number, const std::function<std::shared_ptr<void>(os::EventLoop& loop)>& prepare);

}  // namespace bench
