#include "startup/main.h"

#include "startup/cursor_rules.h"
#include "startup/password_flag.h"

namespace startup {

namespace {

void StartSaver(os::SystemFacts& facts, const StartServices& services, const RunModes& modes) {
  if (facts.guardsPassword()) {
    ParkCursor(services.desktop, services.screen);
  } else {
    HideCursor(services.desktop);
  }
  facts.taskbarWindow = services.desktop.findTaskbar();
  services.desktop.hideTaskbar(facts.taskbarWindow);
  modes.showSaver(facts);
}

// A show that was killed by force has left the taskbar hidden. No other copy runs now, so none needs it so;
// and a show that is about to start hides it again and brings it back at its end.
void BringBackTaskbar(os::Desktop& desktop) {
  const std::intptr_t left = desktop.findMarkedTaskbar();
  if (left != 0) desktop.showTaskbar(left);
}

}  // namespace

Start Main(const std::string& commandText, const StartServices& services, const RunModes& modes) {
  Start start;
  start.facts.osPlatformId = services.machine.platformId();
  start.facts.usePassword = PasswordFlagNumber(ReadPasswordFlag(services.machine));
  if (!services.instance.becomeOnly()) return start;
  start.mode = RunModeOf(commandText);
  if (*start.mode != RunMode::Show) BringBackTaskbar(services.desktop);
  switch (*start.mode) {
    case RunMode::Configure:
      modes.showDialog();
      break;
    case RunMode::ChangePassword:
      start.parentWindow = PasswordWindowOf(commandText);
      services.passwords.change(start.parentWindow);
      break;
    case RunMode::Show:
      StartSaver(start.facts, services, modes);
      break;
    case RunMode::Preview:
      modes.drawPreview(commandText);
      break;
  }
  return start;
}

}  // namespace startup
