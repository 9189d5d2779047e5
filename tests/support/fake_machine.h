// Everything of a machine that a saver changes or asks at its start and end, with one log of all calls.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "os/instance.h"
#include "os/machine_facts.h"
#include "os/passwords.h"
#include "support/call_log.h"
#include "support/fake_desktop.h"
#include "support/fake_screen.h"

namespace support {

class FakeMachineFacts : public os::MachineFacts {
 public:
  explicit FakeMachineFacts(CallLog& log) : log_(log) {}
  std::int32_t platformId() override {
    log_.add("version");
    return platform;
  }
  std::optional<os::RegistryValue> readUserValue(const std::string& key, const std::string& name) override {
    log_.add("registry " + key + " " + name);
    const auto found = values.find({key, name});
    return found == values.end() ? std::nullopt : std::optional(found->second);
  }
  std::string programPath() override { return "C:\\Lumora\\Lumora.scr"; }
  std::string commandLine() override { return "C:\\Lumora\\Lumora.scr /S"; }

  std::int32_t platform = 2;
  std::map<std::pair<std::string, std::string>, os::RegistryValue> values;

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

struct FakeMachine {
  CallLog log;
  FakeMachineFacts facts{log};
  FakeDesktop desktop{log};
  FakePasswords passwords{log};
  FakeInstance instance{log};
  FakeScreen screen;
};

}  // namespace support
