// Centre: a rectangle in the middle grows by one pixel each way until it covers the picture.
#include "base/rounding.h"
#include "saver/transitions/plans.h"

namespace saver {

namespace {

struct Extent {
  double width;
  double height;
};

// The longer side starts with the difference of the sides, so that both become full together.
Extent StartingSize(double width, double height) {
  if (width > height) return {width - height, 1};
  if (width < height) return {1, base::RoundHalfToEven(height - width)};
  return {1, 1};
}

}  // namespace

TransitionPlan PlanCenter(const EffectInput& input) {
  const double width = input.scaleWidth;
  const double height = input.scaleHeight;
  const Extent start = StartingSize(width, height);
  return {Growth::Covering, CountedSteps(1, width - start.width), [width, height, start](int step) {
            const double w = start.width + step;
            const double h = start.height + step;
            return std::vector{WholePixels((width - w) / 2, (height - h) / 2, w, h)};
          }};
}

}  // namespace saver
