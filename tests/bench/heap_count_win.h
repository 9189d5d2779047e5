// Counts what the program takes from its own heap. Memory of the system's libraries does not pass here.
#pragma once

namespace bench {

// Bytes that are held now, and the most that were held since the last ResetPeakHeap().
long long HeldHeap();
long long PeakHeap();
void ResetPeakHeap();

}  // namespace bench
