// Where a box stands on the screen, in twips.
#pragma once

namespace saver {

struct Placement {
  float left = 0;
  float top = 0;

  bool operator==(const Placement&) const = default;
};

// In the middle: each difference is rounded to a whole number (halves to even), its half cut toward zero.
Placement Centered(float screenWidth, float screenHeight, float width, float height);

// Where a floating box stood, pulled back from the bottom and the right edge when it reaches or passes them.
// A negative position stays, unless the pull makes one.
Placement PulledBack(Placement place, float screenWidth, float screenHeight, float width, float height);

}  // namespace saver
