#include "dialog/dialog_win.h"

namespace dialog {

SettingsDialogWin::SettingsDialogWin(const DialogMachineWin& machine, const std::string& programFolder)
    : loop_(machine.loop),
      windows_(loop_, [this](const std::function<void()>& event) { loop_.dispatchGuarded(event); }),
      dialogs_([this] { return windows_.activeWindow(); }),
      form_({machine.files, machine.ansi, machine.pictures, dialogs_, windows_}, programFolder),
      filter_(loop_.addMessageFilter([this](MSG& message) { return windows_.filterMessage(message); })) {
  form_.onUnload = [this] { loop_.quit(); };
  windows_.show(form_);
}

SettingsDialogWin::~SettingsDialogWin() {
  loop_.removeMessageFilter(filter_);
  form_.onUnload = nullptr;
  windows_.unload(form_);
}

}  // namespace dialog
