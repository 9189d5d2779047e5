#include "saver/transitions/plans.h"

#include <array>
#include <utility>

#include "base/rounding.h"

namespace saver {

namespace {

using Rects = std::vector<base::PixelRect>;

constexpr float kWideBoxTwips = 9000;
constexpr int kBlindPitch = 20;           // pixels from one blind to the next
constexpr int kBlindSteps = 20;           // a blind grows by one pixel at each
constexpr int kGrid = 100;                // cells of the fade on each axis
constexpr int kMissesToEnd = kGrid * 10;  // draws in a row that hit cells already shown

// How often a counted loop from 1 to `last` runs: while the counter is at most `last`, which need not be
// whole.
int CountedSteps(double last, int pace = 1) {
  return last < 1 ? 0 : static_cast<int>(base::Int((last - 1) / pace)) + 1;
}

int EdgeWipePace(const EffectInput& input) { return input.outerWidthTwips >= kWideBoxTwips ? 2 : 1; }

// `rectOfStrip` gives the place of a strip by its width.
template <typename RectOfStrip>
TransitionPlan EdgeWipe(const EffectInput& input, RectOfStrip rectOfStrip) {
  const int pace = EdgeWipePace(input);
  return {Growth::Covering, CountedSteps(input.scaleWidth, pace),
          [pace, rectOfStrip](int step) { return Rects{rectOfStrip(1 + step * pace)}; }};
}

// `rectOfBand` gives the place of a band around the centre line by its breadth; `length` is across that line.
template <typename RectOfBand>
TransitionPlan Opening(double length, RectOfBand rectOfBand) {
  return {Growth::Covering, CountedSteps(length / 2),
          [rectOfBand](int step) { return Rects{rectOfBand(1 + step * 2)}; }};
}

// `rectOfBlind` gives the place of a blind by its beginning and its breadth; blinds begin up to `last`
// pitches from the first.
template <typename RectOfBlind>
TransitionPlan Blinds(float last, RectOfBlind rectOfBlind) {
  return {Growth::Covering, kBlindSteps, [last, rectOfBlind](int step) {
            Rects blinds;
            for (int j = 0; static_cast<float>(j) <= last; ++j) {
              blinds.push_back(rectOfBlind(j * kBlindPitch, step + 1));
            }
            return blinds;
          }};
}

struct Extent {
  double width;
  double height;
};

// The longer side starts with the difference of the sides, so that both become full together.
Extent StartOfCenter(double width, double height) {
  if (width > height) return {width - height, 1};
  if (width < height) return {1, base::RoundHalfToEven(height - width)};
  return {1, 1};
}

// The grid spans one and a half times the picture on each axis; cells beyond it take their turn unseen.
int CellLength(float scale) {
  return base::ToInt32(static_cast<double>((scale / 2 + scale) / static_cast<float>(kGrid)));
}

int DrawPosition(base::Random& random) {
  return static_cast<int>(base::Int(kGrid * static_cast<double>(random.next())));
}

}  // namespace

base::PixelRect WholePixels(double x, double y, double width, double height) {
  const auto whole = [](double value) { return static_cast<int>(base::Int(value)); };
  return {whole(x), whole(y), whole(width), whole(height)};
}

TransitionPlan PlanLeftWipe(const EffectInput& input) {
  const double height = input.scaleHeight;
  return EdgeWipe(input, [height](int strip) { return WholePixels(0, 0, strip, height); });
}

TransitionPlan PlanRightWipe(const EffectInput& input) {
  const double width = input.scaleWidth;
  const double height = input.scaleHeight;
  return EdgeWipe(input, [=](int strip) { return WholePixels(width - strip, 0, strip, height); });
}

TransitionPlan PlanRightAndLeftWipe(const EffectInput& input) {
  const double width = input.scaleWidth;
  const double height = input.scaleHeight;
  return Opening(width, [=](int band) { return WholePixels((width - band) / 2, 0, band, height); });
}

TransitionPlan PlanUpAndDown(const EffectInput& input) {
  const double width = input.scaleWidth;
  const double height = input.scaleHeight;
  return Opening(height, [=](int band) { return WholePixels(0, (height - band) / 2, width, band); });
}

TransitionPlan PlanCenter(const EffectInput& input) {
  const double width = input.scaleWidth;
  const double height = input.scaleHeight;
  const Extent start = StartOfCenter(width, height);
  return {Growth::Covering, CountedSteps(width - start.width), [=](int step) {
            const double w = start.width + step;
            const double h = start.height + step;
            return Rects{WholePixels((width - w) / 2, (height - h) / 2, w, h)};
          }};
}

// The number of horizontal blinds is cut to a whole one, that of the vertical ones is compared as it is.
TransitionPlan PlanHorizontalBlinds(const EffectInput& input) {
  const double width = input.scaleWidth;
  const auto last = static_cast<float>(base::Fix(static_cast<double>(input.scaleHeight / kBlindPitch)));
  return Blinds(last, [width](int top, int breadth) { return WholePixels(0, top, width, breadth); });
}

TransitionPlan PlanVerticalBlinds(const EffectInput& input) {
  const double height = input.scaleHeight;
  const float last = input.scaleWidth / kBlindPitch;
  return Blinds(last, [height](int left, int breadth) { return WholePixels(left, 0, breadth, height); });
}

TransitionPlan PlanFade(const EffectInput& input) {
  const int width = CellLength(input.destinationWidth);
  const int height = CellLength(input.destinationHeight);
  std::array<std::array<bool, kGrid>, kGrid> marked{};
  Rects cells;
  for (int misses = 0; misses < kMissesToEnd;) {
    const int x = DrawPosition(input.random);
    const int y = DrawPosition(input.random);
    bool& mark = marked.at(static_cast<std::size_t>(x)).at(static_cast<std::size_t>(y));
    if (std::exchange(mark, true)) {
      ++misses;
      continue;
    }
    misses = 0;
    cells.push_back({x * width, y * height, width, height});
  }
  const int steps = static_cast<int>(cells.size());
  return {Growth::Accumulating, steps,
          [cells = std::move(cells)](int step) { return Rects{cells.at(static_cast<std::size_t>(step))}; }};
}

}  // namespace saver
