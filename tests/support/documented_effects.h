// The transition effects written as the plain counted loops that their documentation gives.
#pragma once

#include <functional>

#include "base/geometry.h"
#include "base/random.h"

namespace support {

struct LoopSize {
  float width;  // pixels, of source and destination alike
  float height;
  float outerWidthTwips;
};

// What the loops do: paint a rectangle in scale units, and come to the end of a step.
struct LoopEvents {
  std::function<void(double x, double y, double width, double height)> paint;
  std::function<void()> endOfStep;
};

// 1 <= effect <= 8.
void RunDocumentedLoop(int effect, const LoopSize& size, base::Random& random, const LoopEvents& events);

}  // namespace support
