// Threads for work beside the user-interface thread.
#pragma once

#include "os/event_loop.h"
#include "os/worker.h"

namespace startup {

// Their ends are told in `loop`, which outlives the workers and their maker. Components of the system, such
// as the picture decoder, can be used on them.
os::MakeWorker MakeWorkers(os::EventLoop& loop);

}  // namespace startup
