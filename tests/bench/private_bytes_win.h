// What this process holds of memory.
#pragma once

namespace bench {

// Bytes that belong to this process alone, counted block by block: the process counters of some systems stand
// still.
double PrivateBytes();

}  // namespace bench
