// The show that the settings dialog lets one see: in small, and full screen.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "base/bitmap.h"
#include "dialog/live_show.h"
#include "forms/timer.h"
#include "os/clock.h"
#include "os/event_loop.h"
#include "os/screen.h"
#include "startup/input_watch.h"
#include "startup/little_stage.h"
#include "startup/seen_show.h"

namespace startup {

struct DialogShowServices {
  os::EventLoop& loop;  // the dialog's
  const os::Clock& clock;
  const os::Screen& screen;

  // Has something done on the stage's own thread, after everything that it was given before. Waits for
  // nothing.
  std::function<void(std::function<void(LittleStage& stage)>)> onStage;
  SeenShow& seen;  // what the stage shows

  // Shows the show full screen with a settings file, and returns when it has ended.
  std::function<void(const std::string& settings)> tryOut;
};

// On the dialog's thread. The show in small is on a thread of its own: its waits run no event of the dialog.
class DialogShow final : public dialog::LiveShow {
 public:
  // How long the little show stays dark when the pointer has ended it.
  static constexpr int kDarkMs = 1500;

  explicit DialogShow(const DialogShowServices& services);

  // The stage shows something new.
  void takeNews();

  void play(forms::LiveView& view, const Play& what) override;
  void stop(const forms::LiveView& view) override;
  bool isIn(const forms::LiveView& view) const override { return view_ == &view; }
  std::string shownPicture() const override { return news_.shownPicture; }

  // Counted as the show counts moves over a picture and beside it.
  void pointerMoved(const forms::LiveView& view, float x, float y) override;

  // The little show has ended meanwhile.
  void tryOut(const std::string& settings) override;

 private:
  void endForAWhile();
  void endPlay();
  bool isSeen() const { return view_ && frame_ && news_.play == number_; }

  DialogShowServices services_;
  forms::Timer dark_;
  forms::LiveView* view_ = nullptr;  // where something is played or was played last
  Play play_;
  int number_ = 0;  // of the play
  ShowNews news_;   // what is known of what is seen
  std::shared_ptr<base::Bitmap> frame_;
  std::optional<InputWatch> watch_;
  bool isTrying_ = false;
};

}  // namespace startup
