// One screen fading into another.
#pragma once

#include <functional>
#include <span>
#include <utility>

#include "base/bitmap.h"
#include "os/clock.h"
#include "os/event_loop.h"
#include "saver/live_picture.h"
#include "saver/stage.h"

namespace saver {

// How long a crossfade takes where no time is set.
constexpr int kCrossfadeMs = 700;

class Crossfade final : public LivePicture {
 public:
  // `from` is an opaque picture of the whole window, and what is shown until there is another one. `place`
  // lies inside it.
  Crossfade(base::Bitmap from, const base::PixelRect& place) : from_(std::move(from)), place_(place) {}

  // The other picture, of the same kind and size. The two are the same outside `place`.
  void setTarget(base::Bitmap to, const base::PixelRect& place);
  void setWeight(int weight) { weight_ = weight; }
  const base::Bitmap& from() const { return from_; }

  base::PixelRect place() const override { return place_; }
  void draw(const base::BitmapView& target, const base::PixelRect& area) const override;

 private:
  base::Bitmap from_;
  base::Bitmap to_;
  base::PixelRect place_;
  int weight_ = 0;
};

// A crossfade that is live on its stage.
struct RunningCrossfade {
  Crossfade& crossfade;
  Stage& stage;
};

// Lets crossfades run beside each other from their one end to the other, sixty frames a second, events in
// between. False when `isOver` has come true; nothing is touched any more then.
bool RunCrossfades(std::span<const RunningCrossfade> running, int durationMs, const os::Clock& clock,
                   os::EventLoop& loop, const std::function<bool()>& isOver);

}  // namespace saver
