#include "pictures/trees.h"

#include <algorithm>
#include <cmath>

#include "pictures/noise.h"

namespace pictures {

void Forest::grow(const Place& place, std::uint32_t seed) {
  int i = 0;
  for (float x = place.from; x < place.to; ++i) {
    const float tall = Chance(i, 1, seed);
    const float height = place.lowest + (place.highest - place.lowest) * tall * tall;
    const float width = height * (0.15F + 0.05F * Chance(i, 2, seed));
    trees_.push_back({x, 0, height, width, seed + static_cast<std::uint32_t>(i)});
    widest_ = std::max(widest_, width);
    x += place.spacing * (0.45F + 1.1F * Chance(i, 3, seed));
  }
}

bool Forest::covers(float x, float y) const {
  const auto first = std::lower_bound(trees_.begin(), trees_.end(), x - widest_,
                                      [](const Tree& tree, float left) { return tree.x < left; });
  for (auto tree = first; tree != trees_.end() && tree->x <= x + widest_; ++tree) {
    if (covers(*tree, x, y)) return true;
  }
  return false;
}

// Whorls of branches: each hangs out from the trunk and is cut off above the next one.
bool Forest::covers(const Tree& tree, float x, float y) {
  const float up = (tree.foot - y) / tree.height;
  if (up > 1.0F || up < -0.15F) return false;
  const float away = std::fabs(x - tree.x) / tree.width;
  if (up < 0.03F) return away < 0.09F || up < 0.0F;
  const float whorls = 9.0F + 4.0F * Chance(0, 0, tree.seed);
  const float place = (1.0F - up) * whorls;
  const float inWhorl = place - std::floor(place);
  const int whorl = static_cast<int>(place) * 2 + (x < tree.x ? 1 : 0);
  const float length = 0.75F + 0.4F * Chance(whorl, 7, tree.seed);
  const float twigs = 0.92F + 0.16F * Hills(up * 55.0F, x < tree.x ? 0.5F : 8.5F, tree.seed);
  const float outline = std::pow(1.0F - up, 0.85F) * (0.42F + 0.58F * inWhorl) * length * twigs;
  return away < std::max(outline, 0.05F * (1.0F - up));
}

}  // namespace pictures
