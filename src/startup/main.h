// The start procedure: reads the switch and starts exactly one run mode.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "os/desktop.h"
#include "os/instance.h"
#include "os/machine_facts.h"
#include "os/passwords.h"
#include "os/screen.h"
#include "startup/command_line.h"

namespace startup {

struct StartServices {
  os::MachineFacts& machine;
  os::Instance& instance;
  os::Passwords& passwords;
  os::Desktop& desktop;
  const os::Screen& screen;
};

// The run modes that have windows. Each is called at most once, as the last step of the start.
struct RunModes {
  std::function<void(const os::SystemFacts& facts)> showSaver;
  std::function<void()> showDialog;
  std::function<void(const std::string& commandText)> drawPreview;
};

struct Start {
  os::SystemFacts facts;
  std::optional<RunMode> mode;     // nothing when another copy of the program is running: end at once
  std::intptr_t parentWindow = 0;  // given behind "/A"
};

// `commandText` is the command line behind the program's name, untrimmed. Returns once the mode has been
// started: a shown saver or dialog then runs in the event loop, the other modes have ended by themselves.
Start Main(const std::string& commandText, const StartServices& services, const RunModes& modes);

}  // namespace startup
