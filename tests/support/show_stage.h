// The real Form1 on fakes: a program folder in memory, a screen in memory, a clock turned by hand.
#pragma once

#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "saver/form1.h"
#include "support/fake_clock.h"
#include "support/fake_date_text.h"
#include "support/fake_desktop.h"
#include "support/fake_event_loop.h"
#include "support/fake_files.h"
#include "support/fake_pictures.h"
#include "support/fake_screen.h"
#include "support/fake_stage_window.h"
#include "support/fake_text_renderer.h"
#include "support/fake_workers.h"
#include "support/plain_show.h"
#include "support/windows_1252.h"

namespace support {

// Settings start as a plain show: centred, in order, one second a picture, no effects, no captions, black.
class ShowStage {
 public:
  explicit ShowStage(base::PixelSize screenSize = {1024, 768}, int dpi = 96);

  // "section/key"; before start().
  void set(const std::string& sectionAndKey, const std::string& value) { settings_[sectionAndKey] = value; }
  void drop(const std::string& sectionAndKey) { settings_.erase(sectionAndKey); }

  // Adds a picture of one colour at the end of the list.
  void addPicture(base::PixelSize size, base::PackedColor color, const std::string& caption = "");

  // What a show on this machine runs on.
  saver::ShowServices services() {
    return {files,
            ansi,
            pictures,
            ahead,
            clock,
            loop,
            screen,
            desktop,
            dates,
            stage,
            window,
            library,
            [this](saver::StageWindow& other) {
              return std::make_unique<saver::Stage>(other, text, stage.twipsPerPixel());
            }};
  }
  static const char* programFolder();

  // Writes the settings file as it has been set.
  void writeSettings();

  // Writes the settings file, makes the form and loads it. An error in Form_Load ends the show as one at the
  // event border does.
  void start();

  // Lets time pass.
  void runFor(std::int64_t ms) { loop.runFor(ms); }

  base::Pixel screenAt(int x, int y) const { return window.screen.at(x, y); }

  FakeClock clock;
  FakeEventLoop loop{clock};
  FakeScreen screen;
  FakeFiles files;
  FakePictures pictures;
  FakeWorkers workers{loop};
  pictures::AheadLoader ahead{{std::shared_ptr<void>(), &pictures}, loop, workers.maker()};
  FakeDateText dates;
  FakeTextRenderer text;
  FakeDesktop desktop;
  Windows1252 ansi;
  FakeStageWindow window;
  saver::LibraryServices library;
  saver::Stage stage;
  os::SystemFacts facts;
  std::unique_ptr<saver::Form1> form;
  std::vector<std::string> errors;  // what reached the event border; each has ended the show

 private:
  Settings settings_;
  int pictures_ = 0;
};

}  // namespace support
