// A show in small on a form that is seen.
#pragma once

#include "support/fake_window_system.h"
#include "support/little_machine.h"
#include "support/plain_show.h"

namespace support {

struct MiniatureDesk {
  MiniatureDesk() {
    settings = PlainShow();
    settings["extras/loadAhead"] = "1";
    form.setHost(&windows);
    view.move(0, 0, 386 * 15, 218 * 15);
  }

  FakeClock clock;
  FakeEventLoop loop{clock};
  FakeWorkers workers{loop};
  FakeFiles files;
  FakePictures pictures;
  LittleMachine machine{clock, loop, files, pictures, workers};
  Settings settings;
  FakeWindowSystem windows;
  forms::Form form{"form"};
  forms::LiveView view{form, "view"};
};

}  // namespace support
