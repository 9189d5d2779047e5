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
  explicit StartedShow(base::PixelSize primaryScreen = {1024, 768}) : stage(primaryScreen) {}

  void start(const os::SystemFacts& facts = {}) {
    stage.writeSettings();
    saver::ShowServices services = stage.services();
    show.emplace(saver::ShowServices{services.files, services.ansi, services.pictures, services.ahead,
                                     services.clock, services.loop, services.screen, restore, services.dates,
                                     services.stage, services.window, services.library, services.makeStage},
                 startup::SaverExit::Services{machine.passwords, restore, stage.screen}, restore, facts,
                 ShowStage::programFolder(), [this] {
                   auto cover = std::make_unique<FakeStageWindow>(base::PixelSize{1, 1});
                   covers.push_back(cover.get());
                   return cover;
                 });
    restore.hideTaskbar(restore.findTaskbar());
    show->start();
  }

  bool hasEnded() const { return stage.loop.isQuitting(); }
  FakeStageWindow& window() { return stage.window; }
  void move(int x, int y) { window().onMouseMove({x, y}); }

  FakeMachine machine;
  ShowStage stage;
  startup::SystemRestore restore{machine.desktop};
  std::vector<FakeStageWindow*> covers;  // windows on further screens, in the order in which they were made
  std::optional<startup::Show> show;
};

}  // namespace support
