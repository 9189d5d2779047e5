// The settings dialog on real windows, as the program's whole life.
#pragma once

#include <memory>
#include <string>

#include "dialog/live_show.h"
#include "dialog/settings_dialog.h"
#include "forms/dialogs_win.h"
#include "forms/window_system_win.h"
#include "os/ansi_code_page.h"
#include "os/event_loop_win.h"
#include "os/files.h"
#include "os/shell.h"
#include "os/worker.h"
#include "pictures/picture.h"

namespace dialog {

// What the dialog needs of the machine beyond its windows.
struct DialogMachineWin {
  os::EventLoopWin& loop;
  os::Files& files;
  const os::AnsiCodePage& ansi;
  pictures::PictureLoader& pictures;
  pictures::AheadLoader* ahead = nullptr;
  os::MakeWorker makeWorker = nullptr;  // for what is looked for beside the dialog; null: nothing is
  CaptionExample captionExample = nullptr;
  HiddenPictures hidden = {};
  LiveShow* live = nullptr;  // the show in small; null: it is not seen
};

class SettingsDialogWin {
 public:
  // Shows the dialog; the caller then runs the event loop, which ends when the dialog is closed.
  SettingsDialogWin(const DialogMachineWin& machine, const std::string& programFolder);
  ~SettingsDialogWin();
  SettingsDialogWin(const SettingsDialogWin&) = delete;
  SettingsDialogWin& operator=(const SettingsDialogWin&) = delete;

  Form2& form() { return dialog_.form; }
  SettingsDialog& dialog() { return dialog_; }
  forms::WindowSystemWin& windows() { return windows_; }

 private:
  os::EventLoopWin& loop_;
  forms::WindowSystemWin windows_;
  forms::DialogsWin dialogs_;
  std::unique_ptr<os::Shell> shell_ = os::MakeShell();
  SettingsDialog dialog_;
  int filter_;
};

}  // namespace dialog
