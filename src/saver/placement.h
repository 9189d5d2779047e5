// Where a picture or a caption stands on the screen, in twips.
#pragma once

namespace saver {

struct Placement {
  float left = 0;
  float top = 0;

  bool operator==(const Placement&) const = default;
};

// The left or top edge of what stands in the middle of `room`: the difference is rounded to a whole number
// (halves to even), its half cut toward zero. Negative for what is longer than the room.
float CenteredEdge(float room, float length);

// In the middle on both axes.
Placement Centered(float screenWidth, float screenHeight, float width, float height);

// Where a floating box stood, pulled back from the bottom and the right edge when it reaches or passes them.
// A negative position stays, unless the pull makes one.
Placement PulledBack(Placement place, float screenWidth, float screenHeight, float width, float height);

}  // namespace saver
