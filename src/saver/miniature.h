// The show in small, on a little screen in one of the program's forms.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/bitmap.h"
#include "forms/live_view.h"
#include "forms/timer.h"
#include "os/ansi_code_page.h"
#include "os/clock.h"
#include "os/date_text.h"
#include "os/event_loop.h"
#include "os/files.h"
#include "os/screen.h"
#include "os/text_renderer.h"
#include "pictures/ahead_loader.h"
#include "settings/load_settings.h"

namespace saver {

// What it needs of the machine.
struct MiniatureServices {
  os::Files& files;  // read alone
  const os::AnsiCodePage& ansi;
  const os::Clock& clock;
  os::EventLoop& loop;
  const os::Screen& screen;  // the real one, which the little screen is a model of
  const os::DateText& dates;
  std::function<std::unique_ptr<os::TextRenderer>(int dpi)> makeText;

  // A loader of pictures as a screen of `small` pixels sees them that stands for one of `large` pixels.
  std::function<std::unique_ptr<pictures::AheadLoader>(base::PixelSize small, base::PixelSize large)>
      makeLoader;
};

// What is to be played.
struct MiniaturePlay {
  std::string settings;        // a settings file, with loadAhead
  bool changesAtOnce = false;  // the second picture comes as soon as the first is there
};

// The real Form1 with a small screen around it. A play that follows another one is seen from its first
// picture on; until that is there, at most for a moment, the last one's stands. What goes wrong in a play
// ends it without a word. Nothing is written, and of the system nothing is changed.
//
// The waits of a show can be under way deeper on the stack whenever this is called. Such a show has ended,
// and goes when they have come to their end. All of it must be gone before this is: the loop has ended.
class Miniature {
 public:
  explicit Miniature(const MiniatureServices& services);
  ~Miniature();
  Miniature(const Miniature&) = delete;
  Miniature& operator=(const Miniature&) = delete;

  // In the place of what is played anywhere. `view` outlives the play, or stops it.
  void play(forms::LiveView& view, MiniaturePlay what);

  // Ends what is played or about to be; its last picture stays in its view.
  void stop();

  // Where it is played or was played last; null where it is nowhere.
  const forms::LiveView* view() const { return view_; }

  // The view is about to go.
  void leave(const forms::LiveView& view);

  // The path of the picture that is or was seen last; empty before the first.
  std::string shownPicture() const;

  // The settings of what is played; null when nothing is.
  const settings::SaverSettings* settings() const;

  // Where on the little screen the picture stands now, in its pixels; empty while there is none.
  base::PixelRect picturePlace() const;

 private:
  class Run;

  void begin();
  void endRun();
  void tend();
  void dropEnded();
  base::Bitmap desktop(base::PixelSize size);

  MiniatureServices services_;
  forms::LiveView* view_ = nullptr;
  std::optional<MiniaturePlay> waiting_;     // to be played as soon as that can be
  std::unique_ptr<Run> run_;                 // what is played
  std::vector<std::unique_ptr<Run>> ended_;  // with a wait of theirs on the stack
  forms::Timer tend_;
  int turns_ = 0;  // of tend_, since something has been waiting
  std::shared_ptr<pictures::AheadLoader> loader_;
  base::PixelSize loaderSmall_;  // for which screens it is
  base::PixelSize loaderLarge_;
  base::Bitmap desktop_;  // at half its size, once it was needed
  std::string shownPicture_;
};

}  // namespace saver
