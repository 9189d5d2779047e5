// Fade: a random dissolve by the cells of a grid.
#include <array>
#include <utility>

#include "base/rounding.h"
#include "saver/transitions/plans.h"

namespace saver {

namespace {

constexpr int kGrid = 100;                // cells on each axis
constexpr int kMissesToEnd = kGrid * 10;  // draws in a row that hit cells already shown

// The grid spans one and a half times the picture on each axis; cells beyond it take their turn unseen.
int CellLength(float scale) {
  return base::ToInt32(static_cast<double>((scale / 2 + scale) / static_cast<float>(kGrid)));
}

int DrawPosition(base::Random& random) {
  return static_cast<int>(base::Int(kGrid * static_cast<double>(random.next())));
}

}  // namespace

TransitionPlan PlanFade(const EffectInput& input) {
  const int width = CellLength(input.destinationWidth);
  const int height = CellLength(input.destinationHeight);
  std::array<std::array<bool, kGrid>, kGrid> marked{};
  std::vector<base::PixelRect> cells;
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
  return {Growth::Accumulating, steps, [cells = std::move(cells)](int step) {
            return std::vector{cells.at(static_cast<std::size_t>(step))};
          }};
}

}  // namespace saver
