#include "os/system_flags_win.h"

#include <windows.h>

namespace os {

void SystemFlagsWin::setScreenSaverRunning(bool running) {
  static_assert(SPI_SETSCREENSAVERRUNNING == 97);
  UINT scratch = 0;
  SystemParametersInfoW(SPI_SETSCREENSAVERRUNNING, running ? TRUE : FALSE, &scratch, 0);
}

}  // namespace os
