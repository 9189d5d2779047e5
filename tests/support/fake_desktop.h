// A desktop that remembers what was done to it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "os/desktop.h"
#include "support/call_log.h"

namespace support {

// The cursor's counter starts at 0 and moves by one a call, unless it is stuck.
class FakeDesktop : public os::Desktop {
 public:
  FakeDesktop() : log_(ownLog_) {}
  explicit FakeDesktop(CallLog& log) : log_(log) {}
  FakeDesktop(const FakeDesktop&) = delete;
  FakeDesktop& operator=(const FakeDesktop&) = delete;

  int showCursor(bool show) override {
    log_.add(show ? "cursor up" : "cursor down");
    if (!cursorStuck) cursorCounter += show ? 1 : -1;
    return cursorCounter;
  }
  void moveCursor(int x, int y) override {
    log_.add("cursor to " + std::to_string(x) + " " + std::to_string(y));
  }
  std::intptr_t findTaskbar() override {
    log_.add("taskbar find");
    return taskbar;
  }
  void hideTaskbar(std::intptr_t window) override {
    log_.add("taskbar hide " + std::to_string(window));
    if (window == taskbar && taskbar != 0) {
      taskbarVisible = false;
      taskbarMarked = true;
    }
  }
  void showTaskbar(std::intptr_t window) override {
    log_.add("taskbar show " + std::to_string(window));
    if (window == taskbar && taskbar != 0) {
      taskbarVisible = true;
      taskbarMarked = false;
    }
  }
  std::intptr_t findMarkedTaskbar() override { return taskbarMarked ? taskbar : 0; }
  void setScreenSaverRunning(bool value) override {
    log_.add(value ? "running on" : "running off");
    runningCalls.push_back(value);
    running = value;
  }

  int cursorCounter = 0;
  bool cursorStuck = false;
  std::intptr_t taskbar = 77;
  bool taskbarVisible = true;
  bool taskbarMarked = false;
  bool running = false;
  std::vector<bool> runningCalls;

 private:
  CallLog ownLog_;
  CallLog& log_;
};

}  // namespace support
