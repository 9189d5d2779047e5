// The drift of a floating picture.
#pragma once

#include <cstdint>
#include <optional>

#include "base/random.h"

namespace saver {

// Milliseconds between two moves at `picSpeed` 0 to 5; nothing for any other value, which leaves the interval
// as it stands.
std::optional<int> FloatIntervalMs(double picSpeed);

// Twips per tick; the signs are the direction (negative: to the left, upward).
struct FloatStep {
  std::int16_t x = 0;
  std::int16_t y = 0;

  bool operator==(const FloatStep&) const = default;
};

// One of the four diagonals with equal chance: 12 twips where the box has fewer than 14 twips per pixel of
// its inner width, else 15. Reseeds from the clock first. Throws base::Overflow for a box without an inner
// width.
FloatStep PickFloatDirection(float boxWidthTwips, float boxScaleWidth, float secondsSinceMidnight,
                             base::Random& random);

// Where the picture floats, in twips.
struct FloatArea {
  float screenWidth = 0;
  float screenHeight = 0;
  float captionHeight = 0;  // upper bound
};

struct FloatingBox {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  FloatStep step;
};

// One tick: bounces by the position before the move, then moves. Beyond one bound of an axis alone the step
// is turned inward, so that even a box far beyond it finds its way back; beyond both it is turned round on
// every tick: a box larger than the area trembles in place. Touching a bound is not beyond it.
void MoveFloatingBox(FloatingBox& box, const FloatArea& area);

}  // namespace saver
