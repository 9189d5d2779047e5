// Work that all processors share.
#pragma once

#include <functional>

namespace os {

// Runs `run` once for each of 0 to count - 1, in any order, and returns when all have run: on this thread,
// and beside it on threads of the system's pool, one for each further processor. Who is free takes the next
// part, and a thread that has not begun by then is not waited for. What a part throws is thrown here.
void RunOnAllProcessors(int count, const std::function<void(int part)>& run);

}  // namespace os
