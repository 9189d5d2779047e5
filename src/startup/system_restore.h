// Puts the system back as it was before the show, however the show ends.
#pragma once

#include <atomic>

#include "os/cursor.h"
#include "os/system_flags.h"
#include "os/taskbar.h"

namespace startup {

// Stands between the program and the parts of the system that the show changes: it passes every call on and
// remembers what is still changed. Given to Main, the show and the exit in place of the seams themselves, it
// knows at every moment what is left to put back. Nothing is put back twice, whoever asks first: the way out,
// the end of a scope, or a crash on any thread.
class SystemRestore : public os::Taskbar, public os::Cursor, public os::SystemFlags {
 public:
  SystemRestore(os::Taskbar& taskbar, os::Cursor& cursor, os::SystemFlags& flags);
  ~SystemRestore() override { restore(); }
  SystemRestore(const SystemRestore&) = delete;
  SystemRestore& operator=(const SystemRestore&) = delete;

  // Clears the running flag, shows the taskbar and raises the cursor's counter to 0, each where it is
  // changed.
  void restore() noexcept;

  std::intptr_t find() override;
  void hide(std::intptr_t window) override;
  void show(std::intptr_t window) override;
  int showCounter(bool show) override;
  void moveTo(int x, int y) override;
  void setScreenSaverRunning(bool running) override;

 private:
  void restoreTaskbar();

  os::Taskbar& taskbar_;
  os::Cursor& cursor_;
  os::SystemFlags& flags_;
  std::atomic<std::intptr_t> hiddenTaskbar_ = 0;
  std::atomic<int> cursorCounter_ = 0;
  std::atomic<bool> running_ = false;
};

}  // namespace startup
