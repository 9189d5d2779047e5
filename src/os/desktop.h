// The user's desktop, as far as a screen saver changes it: cursor, taskbar, and the note that a saver runs.
#pragma once

#include <cstdint>
#include <memory>

namespace os {

class Desktop {
 public:
  virtual ~Desktop() = default;

  // Moves the cursor's display counter up (true) or down by one and returns it; the cursor shows while it is
  // 0 or more.
  virtual int showCursor(bool show) = 0;

  // In pixels of the screen; the system clips a place beyond the screen to its nearest corner or edge.
  virtual void moveCursor(int x, int y) = 0;

  // The taskbar's window, or 0 where there is none.
  virtual std::intptr_t findTaskbar() = 0;

  // Handle 0 does nothing. Neither waits for the taskbar's owner, which may not answer. Hiding leaves a mark
  // on the window and showing takes it off.
  virtual void hideTaskbar(std::intptr_t window) = 0;
  virtual void showTaskbar(std::intptr_t window) = 0;

  // The taskbar when it has the mark, else 0. While no show runs, a mark means that one was killed before it
  // could bring the taskbar back; a taskbar that somebody else hid has none.
  virtual std::intptr_t findMarkedTaskbar() = 0;

  // The system's note that a saver is running (action 97, SPI_SETSCREENSAVERRUNNING). On the older family a
  // running saver blocks task switching; it must be told of the start and of the end.
  virtual void setScreenSaverRunning(bool running) = 0;
};

// That of this machine.
std::unique_ptr<Desktop> MakeDesktop();

}  // namespace os
