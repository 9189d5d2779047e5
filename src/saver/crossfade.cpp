#include "saver/crossfade.h"

#include <algorithm>
#include <cstdint>

#include "base/mix_light.h"
#include "saver/transitions/transition_runner.h"

namespace saver {

void Crossfade::setTarget(base::Bitmap to, const base::PixelRect& place) {
  to_ = std::move(to);
  place_ = place;
  weight_ = 0;
}

void Crossfade::draw(const base::BitmapView& target, const base::PixelRect& area) const {
  if (to_.isEmpty()) {
    base::CopyRect(target, {area.left, area.top}, from_, area);
  } else {
    base::MixLight(target, {0, 0}, from_, to_, area, weight_);
  }
}

bool RunCrossfades(std::span<const RunningCrossfade> running, int durationMs, const os::Clock& clock,
                   os::EventLoop& loop, const std::function<bool()>& isOver) {
  const std::int64_t start = clock.tickMs();
  for (;;) {
    const std::int64_t elapsed = clock.tickMs() - start;
    if (elapsed >= durationMs) return true;
    for (const RunningCrossfade& one : running) {
      one.crossfade.setWeight(static_cast<int>(elapsed * base::kWholeWeight / durationMs));
      one.stage.liveChanged();
      one.stage.flush();
    }
    const std::int64_t next = start + std::min<std::int64_t>(NextFrameMs(clock.tickMs() - start), durationMs);
    do {
      loop.waitUntil(next);
      if (isOver() || loop.isQuitting()) return false;
    } while (clock.tickMs() < next);
  }
}

}  // namespace saver
