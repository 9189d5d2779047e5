// The one way out of the show.
#pragma once

#include <cstdint>
#include <functional>

#include "os/desktop.h"
#include "os/machine_facts.h"
#include "os/passwords.h"
#include "os/screen.h"

namespace startup {

class SaverExit {
 public:
  struct Services {
    os::Passwords& passwords;
    os::Desktop& desktop;
    const os::Screen& screen;
  };

  // What belongs to the show.
  struct Show {
    std::function<std::intptr_t()> window;  // the handle of Form1's window
    std::function<void()> showFormAgain;
    std::function<void()> unloadForm;
    std::function<void()> endProgram;
  };

  SaverExit(const os::SystemFacts& facts, const Services& services, Show show);

  // Asks for the password where the saver has to, puts the system back, ends the program. Events that arrive
  // while it is under way, or after it has ended the show, do nothing; after a refused password it is ready
  // again.
  void ExitSaver();

 private:
  enum class State { Showing, Asking, Ended };

  bool passwordAccepted();

  os::SystemFacts facts_;
  Services services_;
  Show show_;
  State state_ = State::Showing;
};

}  // namespace startup
