// The form of more options in front of a user.
#pragma once

#include <functional>
#include <string>

#include "dialog/more_options.h"
#include "support/settings_dialog_machine.h"

namespace support {

// The settings dialog with one picture, in front of a user who presses "More...".
class MoreOptionsDesk {
 public:
  using Act = std::function<void(dialog::MoreOptions& form)>;

  MoreOptionsDesk() {
    machine.setPictures({{"a.gif", "A"}});
    machine.set("image", "picRandom", "cent");
  }

  dialog::SettingsDialog& dialog() {
    if (!dialog_) dialog_ = &machine.openDialog();
    return *dialog_;
  }

  // What the user does in the form; then they press OK there.
  void inMore(const Act& act) { pressMore(act, &dialog::MoreOptions::Ok); }
  void inMoreButCancel(const Act& act) { pressMore(act, &dialog::MoreOptions::Cancel); }

  // The file as OK of the dialog leaves it.
  std::string saved() {
    dialog().form.Ok.userClicked();
    return machine.files.content[machine.kIniPath];
  }

  SettingsDialogMachine machine;

 private:
  void pressMore(const Act& act, forms::CommandButton dialog::MoreOptions::*end) {
    machine.windows.whileModal = [&](forms::Form& form) {
      auto& more = static_cast<dialog::MoreOptions&>(form);
      act(more);
      (more.*end).userClicked();
    };
    dialog().form.MoreCommand.userClicked();
  }

  dialog::SettingsDialog* dialog_ = nullptr;
};

}  // namespace support
