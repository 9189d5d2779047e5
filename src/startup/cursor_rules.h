// Where the cursor goes while the saver is on the screen.
#pragma once

#include "os/desktop.h"
#include "os/screen.h"

namespace startup {

// Of the display counter, which starts near 0. A system that refuses to move it must not keep the show from
// coming or going.
inline constexpr int kMostCursorCalls = 1000;

// Takes the display counter down until it is below -5.
void HideCursor(os::Desktop& desktop);

// Takes the display counter up until it is above 5.
void ShowCursor(os::Desktop& desktop);

// Moves the cursor to the screen's size in twips plus 12 each way: far beyond the bottom-right corner, to
// which the system then clips it.
void ParkCursor(os::Desktop& desktop, const os::Screen& screen);

}  // namespace startup
