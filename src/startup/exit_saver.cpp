#include "startup/exit_saver.h"

#include <utility>

#include "startup/cursor_rules.h"

namespace startup {

SaverExit::SaverExit(const os::SystemFacts& facts, const Services& services, Show show)
    : facts_(facts), services_(services), show_(std::move(show)) {}

bool SaverExit::passwordAccepted() {
  state_ = State::Asking;
  const bool accepted = services_.passwords.verify(show_.window());
  state_ = State::Showing;
  return accepted;
}

void SaverExit::ExitSaver() {
  if (state_ != State::Showing) return;
  if (facts_.guardsPassword()) {
    if (!passwordAccepted()) {
      ParkCursor(services_.desktop, services_.screen);
      show_.showFormAgain();
      return;
    }
    services_.desktop.setScreenSaverRunning(false);
  }
  state_ = State::Ended;
  services_.desktop.showTaskbar(services_.desktop.findTaskbar());
  show_.unloadForm();
  show_.endProgram();
}

}  // namespace startup
