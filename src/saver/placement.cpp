#include "saver/placement.h"

#include "base/rounding.h"

namespace saver {

float CenteredEdge(float room, float length) {
  return static_cast<float>(base::WholeDivide(static_cast<double>(room - length), 2));
}

Placement Centered(float screenWidth, float screenHeight, float width, float height) {
  return {CenteredEdge(screenWidth, width), CenteredEdge(screenHeight, height)};
}

Placement PulledBack(Placement place, float screenWidth, float screenHeight, float width, float height) {
  if (height + place.top >= screenHeight) place.top = screenHeight - height;
  if (width + place.left >= screenWidth) place.left = screenWidth - width;
  return place;
}

}  // namespace saver
