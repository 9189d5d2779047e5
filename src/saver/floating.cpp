#include "saver/floating.h"

#include <array>
#include <cstdlib>

#include "base/rounding.h"

namespace saver {

namespace {

// By speed. The jump between 3 and 4 is meant.
constexpr std::array<int, 6> kIntervalsMs{150, 125, 100, 75, 25, 10};

constexpr int kFewTwipsPerPixel = 14;
constexpr int kSmallStepTwips = 12;  // one pixel at 120 dots per inch
constexpr int kLargeStepTwips = 15;  // one pixel at 96 dots per inch

// The extent of a box and of its bounds on one axis.
struct Axis {
  float position;
  float length;
  float low;
  float high;
};

std::int16_t Bounced(int step, const Axis& axis) {
  const bool beyondLow = axis.position < axis.low;
  const bool beyondHigh = axis.position > axis.high || axis.position + axis.length > axis.high;
  if (beyondLow && beyondHigh) return static_cast<std::int16_t>(-step);
  if (beyondLow) return static_cast<std::int16_t>(std::abs(step));
  if (beyondHigh) return static_cast<std::int16_t>(-std::abs(step));
  return static_cast<std::int16_t>(step);
}

}  // namespace

std::optional<int> FloatIntervalMs(double picSpeed) {
  for (std::size_t speed = 0; speed < kIntervalsMs.size(); ++speed) {
    if (picSpeed == static_cast<double>(speed)) return kIntervalsMs[speed];
  }
  return std::nullopt;
}

FloatStep PickFloatDirection(float boxWidthTwips, float boxScaleWidth, float secondsSinceMidnight,
                             base::Random& random) {
  const int twipsPerPixel =
      base::WholeDivide(static_cast<double>(boxWidthTwips), static_cast<double>(boxScaleWidth));
  const int magnitude = twipsPerPixel < kFewTwipsPerPixel ? kSmallStepTwips : kLargeStepTwips;
  random.reseed(secondsSinceMidnight);
  const auto draw = [&] {
    const bool negative = base::Int(static_cast<double>(random.next()) * 2) == 1;
    return static_cast<std::int16_t>(negative ? -magnitude : magnitude);
  };
  FloatStep step;
  step.y = draw();
  step.x = draw();
  return step;
}

void MoveFloatingBox(FloatingBox& box, const FloatArea& area) {
  box.step.x = Bounced(box.step.x, {box.left, box.width, 0, area.screenWidth});
  box.step.y = Bounced(box.step.y, {box.top, box.height, area.captionHeight, area.screenHeight});
  box.left += static_cast<float>(box.step.x);
  box.top += static_cast<float>(box.step.y);
}

}  // namespace saver
