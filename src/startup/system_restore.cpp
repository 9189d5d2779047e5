#include "startup/system_restore.h"

#include "startup/cursor_rules.h"

namespace startup {

void SystemRestore::restore() noexcept {
  if (running_.exchange(false)) desktop_.setScreenSaverRunning(false);
  restoreTaskbar();
  int counter = cursorCounter_.exchange(0);
  for (int calls = 0; counter < 0 && calls < kMostCursorCalls; ++calls) counter = desktop_.showCursor(true);
}

void SystemRestore::restoreTaskbar() {
  const std::intptr_t hidden = hiddenTaskbar_.exchange(0);
  if (hidden == 0) return;
  // The desktop may have made a new taskbar meanwhile.
  const std::intptr_t present = desktop_.findTaskbar();
  desktop_.showTaskbar(present != 0 ? present : hidden);
}

void SystemRestore::hideTaskbar(std::intptr_t window) {
  hiddenTaskbar_ = window;  // before the call: it may be the last that the program gets to do
  desktop_.hideTaskbar(window);
}

void SystemRestore::showTaskbar(std::intptr_t window) {
  desktop_.showTaskbar(window);
  if (window != 0) hiddenTaskbar_ = 0;
}

int SystemRestore::showCursor(bool show) {
  const int counter = desktop_.showCursor(show);
  cursorCounter_ = counter;
  return counter;
}

void SystemRestore::setScreenSaverRunning(bool running) {
  running_ = running;
  desktop_.setScreenSaverRunning(running);
}

}  // namespace startup
