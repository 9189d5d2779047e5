// A long show under watch.
#pragma once

namespace e2e {

// Runs the built program's show for `minutes` with effects, floating, scrolling and clock, and writes every
// half minute what it holds of the system: private memory, kernel handles, GDI objects, windows. 0 when all
// of it stayed flat after the first quarter and the show ended by a key; 1 otherwise, with the reason
// written.
int RunSoak(int minutes);

}  // namespace e2e
