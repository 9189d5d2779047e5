// The shape of a transition effect: which rectangles of the new picture each of its steps paints.
#pragma once

#include <functional>
#include <vector>

#include "base/geometry.h"
#include "base/random.h"

namespace saver {

// What an effect is laid out for. Lengths of the picture boxes are in their own scale units (pixels).
struct EffectInput {
  float scaleWidth = 0;  // of the source, IntialPicture
  float scaleHeight = 0;
  float destinationWidth = 0;  // of the destination, DisplayingPicture
  float destinationHeight = 0;
  float outerWidthTwips = 0;  // DisplayingPicture.Width
  base::Random& random;
};

enum class Growth {
  Covering,      // a step covers all earlier ones: its rectangle j contains rectangle j of each of them
  Accumulating,  // a step adds to what the earlier ones have shown
};

struct TransitionPlan {
  Growth growth = Growth::Covering;
  int stepCount = 0;

  // The rectangles that the step paints, 0 <= step < stepCount: the part of the new picture there goes to the
  // same place of the box. They may reach beyond the picture, or be empty.
  std::function<std::vector<base::PixelRect>(int step)> rectsOfStep;
};

// The one rule for positions and lengths that are no whole numbers: each is cut to the whole number below it.
base::PixelRect WholePixels(double x, double y, double width, double height);

// How often a counted loop from `from` to `to` runs: while the counter is at most `to`, which need not be
// whole.
int CountedSteps(double from, double to, double step = 1);

}  // namespace saver
