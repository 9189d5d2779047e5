// The settings dialog as the program's whole life.
#pragma once

#include <string>

#include "os/ansi_code_page.h"
#include "os/event_loop_win.h"
#include "os/files.h"
#include "os/pictures.h"

namespace dialog {

// What the dialog needs of the machine beyond its windows.
struct DialogMachineWin {
  os::EventLoopWin& loop;
  os::Files& files;
  const os::AnsiCodePage& ansi;
  os::PictureLoader& pictures;
};

// Shows the settings dialog and runs the event loop until it is closed. Returns the program's exit code.
int RunDialog(const DialogMachineWin& machine, const std::string& programFolder);

}  // namespace dialog
