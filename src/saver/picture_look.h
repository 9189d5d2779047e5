// The look of the show's pictures beyond the documented one: composed, gliding, fading into each other.
#pragma once

#include <cstdint>
#include <optional>

#include "base/bitmap.h"
#include "forms/picture_boxes.h"
#include "forms/timer.h"
#include "os/clock.h"
#include "os/event_loop.h"
#include "os/screen.h"
#include "saver/crossfade.h"
#include "saver/gliding_picture.h"
#include "saver/looks.h"
#include "saver/stage.h"

namespace saver {

// A little more than sixty frames a second. The system's timers tick every 15.6 ms at the least, unless a
// program asks for more; an interval below that is the one that comes evenly.
constexpr int kGlideFrameMs = 15;

// Where the system is set to show no animations, pictures stand still, and a crossfade is a plain change.
class PictureLook {
 public:
  PictureLook(Stage& stage, const os::Clock& clock, os::EventLoop& loop, const os::Screen& screen)
      : stage_(stage), clock_(clock), loop_(loop), screen_(screen) {
    frames_.onTimer = [this] { showFrame(); };
  }
  PictureLook(const PictureLook&) = delete;
  PictureLook& operator=(const PictureLook&) = delete;

  void prepare(const settings::SettingsRecord& record) { looks_ = Looks::of(record); }
  const Looks& looks() const { return looks_; }
  bool changesWithoutPause() const { return looks_.change != ChangeStyle::Documented; }

  // The picture as its box shows it first, composed for the middle of the screen. Null where the documented
  // look is wanted, or the picture cannot be decoded. Each call is a turn of its own, with its own direction.
  base::SharedBitmap compose(const pictures::Picture& picture, Composition on);

  // The picture that was composed last is one that glides.
  bool glides() const { return composed_ && !composed_->glide.standsStill(); }

  // The composed picture, if any, begins to glide in its box, which shows it.
  void startGlide(const forms::PictureBox& box);

  // The box takes the picture over where it is.
  void stopGlide(forms::PictureBox& box);

  // A held picture glides no further, and goes on from there.
  void hold(bool held);

  // The screen stays as it is but for its texts, whatever is done to the boxes, until it is shown or faded
  // to.
  void freezeScreen();
  void showScreen();

  // What the screen showed when it was frozen.
  const base::Bitmap& frozen() const { return crossfade_->from(); }

  // The fade from the frozen screen to what the boxes show now, which differs within `area` alone. Nothing
  // where there is none to see. In the end the screen is to be shown.
  std::optional<RunningCrossfade> fadeToBoxes(const base::PixelRect& area);

  // Nothing moves any more.
  void end() { frames_.setEnabled(false); }

 private:
  void showFrame();
  base::SharedBitmap overBackground(const base::Bitmap& pixels, const Glide& glide,
                                    base::PixelSize screen) const;

  Stage& stage_;
  const os::Clock& clock_;
  os::EventLoop& loop_;
  const os::Screen& screen_;
  Looks looks_;
  std::optional<ComposedPicture> composed_;  // that the box shows, or is about to
  std::optional<GlidingPicture> gliding_;
  forms::Timer frames_{loop_, kGlideFrameMs};
  std::optional<std::int64_t> heldSinceMs_;
  std::optional<Crossfade> crossfade_;
  int turn_ = 0;
};

}  // namespace saver
