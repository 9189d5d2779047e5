// Everything of a machine that a saver changes or asks at its start and end, with one log of all calls.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "os/cursor.h"
#include "os/instance.h"
#include "os/passwords.h"
#include "os/program.h"
#include "os/registry.h"
#include "os/shell.h"
#include "os/system_flags.h"
#include "os/system_version.h"
#include "os/taskbar.h"
#include "support/call_log.h"
#include "support/fake_screen.h"

namespace support {

class FakeSystemVersion : public os::SystemVersion {
 public:
  explicit FakeSystemVersion(CallLog& log) : log_(log) {}
  std::int32_t platformId() override {
    log_.add("version");
    return platform;
  }

  std::int32_t platform = 2;

 private:
  CallLog& log_;
};

class FakeRegistry : public os::Registry {
 public:
  explicit FakeRegistry(CallLog& log) : log_(log) {}
  std::optional<os::RegistryValue> readUserValue(const std::string& key, const std::string& name) override {
    log_.add("registry " + key + " " + name);
    const auto found = values.find({key, name});
    return found == values.end() ? std::nullopt : std::optional(found->second);
  }

  std::map<std::pair<std::string, std::string>, os::RegistryValue> values;

 private:
  CallLog& log_;
};

// Its counter starts at 0 and moves by one a call, unless it is stuck.
class FakeCursor : public os::Cursor {
 public:
  explicit FakeCursor(CallLog& log) : log_(log) {}
  int showCounter(bool show) override {
    log_.add(show ? "cursor up" : "cursor down");
    if (!stuck) counter += show ? 1 : -1;
    return counter;
  }
  void moveTo(int x, int y) override { log_.add("cursor to " + std::to_string(x) + " " + std::to_string(y)); }

  int counter = 0;
  bool stuck = false;

 private:
  CallLog& log_;
};

class FakeTaskbar : public os::Taskbar {
 public:
  explicit FakeTaskbar(CallLog& log) : log_(log) {}
  std::intptr_t find() override {
    log_.add("taskbar find");
    return window;
  }
  void hide(std::intptr_t which) override {
    log_.add("taskbar hide " + std::to_string(which));
    if (which == window && window != 0) visible = false;
  }
  void show(std::intptr_t which) override {
    log_.add("taskbar show " + std::to_string(which));
    if (which == window && window != 0) visible = true;
  }

  std::intptr_t window = 77;
  bool visible = true;

 private:
  CallLog& log_;
};

class FakeRunningFlag : public os::SystemFlags {
 public:
  explicit FakeRunningFlag(CallLog& log) : log_(log) {}
  void setScreenSaverRunning(bool value) override {
    log_.add(value ? "running on" : "running off");
    running = value;
  }

  bool running = false;

 private:
  CallLog& log_;
};

class FakePasswords : public os::Passwords {
 public:
  explicit FakePasswords(CallLog& log) : log_(log) {}
  bool verify(std::intptr_t window) override {
    log_.add("verify " + std::to_string(window));
    if (whileAsking) whileAsking();
    return accepts;
  }
  void change(std::intptr_t window) override { log_.add("change " + std::to_string(window)); }

  bool accepts = true;
  std::function<void()> whileAsking;  // what happens while the dialog is open

 private:
  CallLog& log_;
};

class FakeInstance : public os::Instance {
 public:
  explicit FakeInstance(CallLog& log) : log_(log) {}
  bool becomeOnly() override {
    log_.add("instance");
    return !anotherRuns;
  }
  void release() override { log_.add("instance release"); }

  bool anotherRuns = false;

 private:
  CallLog& log_;
};

class FakeShell : public os::Shell {
 public:
  explicit FakeShell(CallLog& log) : log_(log) {}
  void open(const std::string& target) override { log_.add("open " + target); }

 private:
  CallLog& log_;
};

class FakeProgram : public os::Program {
 public:
  std::string path() const override { return programPath; }
  std::string folder() const override { return os::FolderOf(programPath); }
  std::string commandLine() const override { return line; }

  std::string programPath = "C:\\Lumora\\Lumora.scr";
  std::string line = "C:\\Lumora\\Lumora.scr /S";
};

struct FakeMachine {
  CallLog log;
  FakeSystemVersion version{log};
  FakeRegistry registry{log};
  FakeCursor cursor{log};
  FakeTaskbar taskbar{log};
  FakeRunningFlag flags{log};
  FakePasswords passwords{log};
  FakeInstance instance{log};
  FakeShell shell{log};
  FakeProgram program;
  FakeScreen screen;
};

}  // namespace support
