#include "saver/placement.h"

#include "base/rounding.h"

namespace saver {

namespace {

float Half(float difference) {
  return static_cast<float>(base::WholeDivide(static_cast<double>(difference), 2));
}

}  // namespace

Placement Centered(float screenWidth, float screenHeight, float width, float height) {
  return {Half(screenWidth - width), Half(screenHeight - height)};
}

Placement PulledBack(Placement place, float screenWidth, float screenHeight, float width, float height) {
  if (height + place.top >= screenHeight) place.top = screenHeight - height;
  if (width + place.left >= screenWidth) place.left = screenWidth - width;
  return place;
}

}  // namespace saver
