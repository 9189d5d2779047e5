// What the settings dialog needs of the machine.
#pragma once

#include "forms/dialogs.h"
#include "forms/window_system.h"
#include "os/ansi_code_page.h"
#include "os/files.h"
#include "pictures/picture.h"

namespace dialog {

struct DialogServices {
  os::Files& files;
  const os::AnsiCodePage& ansi;
  pictures::PictureLoader& pictures;
  forms::Dialogs& dialogs;
  forms::WindowSystem& windows;
};

}  // namespace dialog
