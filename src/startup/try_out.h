// The show as it would be with other settings, while the program goes on behind it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "os/clock.h"
#include "os/desktop.h"
#include "os/event_loop.h"
#include "os/files.h"
#include "saver/picture_order.h"
#include "startup/show.h"
#include "startup/system_restore.h"

namespace startup {

// What a show that is tried has in the place of the program's own.
struct TriedServices {
  os::EventLoop& loop;  // whose end is that of the show
  os::Files& files;     // nothing can be written, and the settings are those that are tried
  saver::LibraryServices library;
  SystemRestore& restore;
};

struct TryOutServices {
  os::EventLoop& loop;
  const os::Clock& clock;
  os::Files& files;
  os::Desktop& desktop;
  std::string programFolder;
  saver::LibraryServices library;

  // The show in its windows, started. What it gives is destroyed when the show has ended.
  std::function<std::shared_ptr<void>(const TriedServices& services)> startShow;

  // What a crash does besides putting the system back; null: nothing.
  std::function<void(std::function<void()> farewell)> setFarewell;

  // The key that started it is still down, and would end the show.
  std::function<bool()> isKeyDown;
};

// How long a key that is held may put the show off.
constexpr int kKeyPatienceMs = 3000;

// Shows the show full screen with `settings`, the bytes of a settings file, until the user or an error ends
// it: input is watched as ever, no password is asked for. Nothing is written, but should the program crash
// meanwhile, the settings are left in zbfaone.bak. Whatever ends it, the cursor is as it was before; the
// taskbar, which the show covers, is left alone: hiding and showing it can take the keyboard from the
// program's windows.
void TryOut(const TryOutServices& services, const std::string& settings);

}  // namespace startup
