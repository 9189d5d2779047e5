#include "saver/transitions/plan.h"

#include <cmath>

namespace saver {

base::PixelRect WholePixels(double x, double y, double width, double height) {
  const auto whole = [](double value) { return static_cast<int>(std::floor(value)); };
  return {whole(x), whole(y), whole(width), whole(height)};
}

int CountedSteps(double from, double to, double step) {
  return from > to ? 0 : static_cast<int>(std::floor((to - from) / step)) + 1;
}

}  // namespace saver
