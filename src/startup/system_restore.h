// Puts the system back as it was before the show, however the show ends.
#pragma once

#include <atomic>

#include "os/desktop.h"

namespace startup {

// Stands between the program and the desktop that the show changes: it passes every call on and remembers
// what is still changed. Given to Main, the show and the exit in place of the desktop itself, it knows at
// every moment what is left to put back. Nothing is put back twice, whoever asks first: the way out, the end
// of a scope, or a crash on any thread.
class SystemRestore : public os::Desktop {
 public:
  explicit SystemRestore(os::Desktop& desktop) : desktop_(desktop) {}
  ~SystemRestore() override { restore(); }
  SystemRestore(const SystemRestore&) = delete;
  SystemRestore& operator=(const SystemRestore&) = delete;

  // Clears the running flag, shows the taskbar and raises the cursor's counter to 0, each where it is
  // changed.
  void restore() noexcept;

  int showCursor(bool show) override;
  void moveCursor(int x, int y) override { desktop_.moveCursor(x, y); }
  std::intptr_t findTaskbar() override { return desktop_.findTaskbar(); }
  std::intptr_t findMarkedTaskbar() override { return desktop_.findMarkedTaskbar(); }
  void hideTaskbar(std::intptr_t window) override;
  void showTaskbar(std::intptr_t window) override;
  void setScreenSaverRunning(bool running) override;

 private:
  void restoreTaskbar();

  os::Desktop& desktop_;
  std::atomic<std::intptr_t> hiddenTaskbar_ = 0;
  std::atomic<int> cursorCounter_ = 0;
  std::atomic<bool> running_ = false;
};

}  // namespace startup
