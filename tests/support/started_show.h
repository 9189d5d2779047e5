// The show with everything around it, on fakes: started as the program starts it.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "startup/show.h"
#include "support/fake_machine.h"
#include "support/show_stage.h"

namespace support {

class StartedShow {
 public:
  // Set up `stage` before.
  void start(const os::SystemFacts& facts = {}) {
    stage.writeSettings();
    const saver::ShowServices s = stage.services();
    show.emplace(saver::ShowServices{s.files, s.ansi, s.pictures, s.ahead, s.clock, s.loop, s.screen, restore,
                                     s.dates, s.stage, s.window, s.library},
                 startup::SaverExit::Services{machine.passwords, restore, stage.screen}, restore, facts,
                 ShowStage::programFolder(), [this] {
                   auto cover = std::make_unique<FakeStageWindow>(base::PixelSize{1, 1});
                   covers.push_back(cover.get());
                   return cover;
                 });
    restore.hideTaskbar(restore.findTaskbar());
    show->start();
  }

  FakeMachine machine;
  ShowStage stage;
  startup::SystemRestore restore{machine.desktop};
  std::vector<FakeStageWindow*> covers;
  std::optional<startup::Show> show;
};

}  // namespace support
