#include "startup/system_restore.h"

namespace startup {

namespace {

constexpr int kMostCalls = 1000;  // for a system that refuses to move the counter

}  // namespace

SystemRestore::SystemRestore(os::Taskbar& taskbar, os::Cursor& cursor, os::SystemFlags& flags)
    : taskbar_(taskbar), cursor_(cursor), flags_(flags) {}

void SystemRestore::restore() noexcept {
  if (running_.exchange(false)) flags_.setScreenSaverRunning(false);
  restoreTaskbar();
  int counter = cursorCounter_.exchange(0);
  for (int calls = 0; counter < 0 && calls < kMostCalls; ++calls) counter = cursor_.showCounter(true);
}

void SystemRestore::restoreTaskbar() {
  const std::intptr_t hidden = hiddenTaskbar_.exchange(0);
  if (hidden == 0) return;
  // The desktop may have made a new taskbar meanwhile.
  const std::intptr_t present = taskbar_.find();
  taskbar_.show(present != 0 ? present : hidden);
}

std::intptr_t SystemRestore::find() { return taskbar_.find(); }

void SystemRestore::hide(std::intptr_t window) {
  hiddenTaskbar_ = window;  // before the call: it may be the last that the program gets to do
  taskbar_.hide(window);
}

void SystemRestore::show(std::intptr_t window) {
  taskbar_.show(window);
  if (window != 0) hiddenTaskbar_ = 0;
}

int SystemRestore::showCounter(bool show) {
  const int counter = cursor_.showCounter(show);
  cursorCounter_ = counter;
  return counter;
}

void SystemRestore::moveTo(int x, int y) { cursor_.moveTo(x, y); }

void SystemRestore::setScreenSaverRunning(bool running) {
  running_ = running;
  flags_.setScreenSaverRunning(running);
}

}  // namespace startup
