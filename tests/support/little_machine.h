// What a show in small needs, on fakes.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "pictures/thumbnails.h"
#include "saver/miniature.h"
#include "support/fake_clock.h"
#include "support/fake_date_text.h"
#include "support/fake_event_loop.h"
#include "support/fake_files.h"
#include "support/fake_pictures.h"
#include "support/fake_screen.h"
#include "support/fake_text_renderer.h"
#include "support/fake_workers.h"
#include "support/windows_1252.h"

namespace support {

// On a loop and with pictures of somebody else's.
class LittleMachine {
 public:
  LittleMachine(FakeClock& clock, FakeEventLoop& loop, FakeFiles& files, FakePictures& pictures,
                FakeWorkers& workers)
      : clock_(clock), loop_(loop), files_(files), pictures_(pictures), workers_(workers) {
    screen.size = {1920, 1080};
  }

  saver::MiniatureServices services() {
    return {files_,
            ansi,
            clock_,
            loop_,
            screen,
            dates,
            [this](int dpi) {
              wordDpi.push_back(dpi);
              return std::make_unique<FakeTextRenderer>();
            },
            [this](base::PixelSize small, base::PixelSize large) {
              loaders.emplace_back(small, large);
              return std::make_unique<pictures::AheadLoader>(
                  std::make_shared<pictures::ThumbnailLoader>(
                      std::shared_ptr<pictures::PictureLoader>(std::shared_ptr<void>(), &pictures_), kept,
                      small, large),
                  loop_, workers_.maker());
            }};
  }

  FakeScreen screen;
  FakeDateText dates;
  Windows1252 ansi;
  std::shared_ptr<pictures::Thumbnails> kept = std::make_shared<pictures::Thumbnails>();
  std::vector<std::pair<base::PixelSize, base::PixelSize>> loaders;  // those that were made
  std::vector<int> wordDpi;

 private:
  FakeClock& clock_;
  FakeEventLoop& loop_;
  FakeFiles& files_;
  FakePictures& pictures_;
  FakeWorkers& workers_;
};

}  // namespace support
