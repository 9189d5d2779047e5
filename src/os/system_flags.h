// The system's note that a screen saver is running (action 97, SPI_SETSCREENSAVERRUNNING).
#pragma once

namespace os {

class SystemFlags {
 public:
  virtual ~SystemFlags() = default;

  // On the older family a running saver blocks task switching; it must be told of the start and of the end.
  virtual void setScreenSaverRunning(bool running) = 0;
};

}  // namespace os
