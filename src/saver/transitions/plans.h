// The plans of the transition effects: which rectangles of the new picture each step of an effect paints.
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

// The new picture grows from the left or the right edge: by two pixels a step in boxes 9000 twips wide or
// wider, else by one. At the double pace the last column of an even width is left to whoever assigns the
// whole picture.
TransitionPlan PlanLeftWipe(const EffectInput& input);
TransitionPlan PlanRightWipe(const EffectInput& input);

// It opens from its vertical or its horizontal centre line.
TransitionPlan PlanRightAndLeftWipe(const EffectInput& input);
TransitionPlan PlanUpAndDown(const EffectInput& input);

// A rectangle in the middle grows by one pixel each way until it covers the picture.
TransitionPlan PlanCenter(const EffectInput& input);

// Strips or columns, 20 pixels apart, grow downwards or to the right until they touch.
TransitionPlan PlanHorizontalBlinds(const EffectInput& input);
TransitionPlan PlanVerticalBlinds(const EffectInput& input);

// A random dissolve by the cells of a grid, which are drawn from input.random while the plan is being made.
TransitionPlan PlanFade(const EffectInput& input);

// The one rule for positions and lengths that are no whole numbers: each is cut to the whole number below it.
base::PixelRect WholePixels(double x, double y, double width, double height);

}  // namespace saver
