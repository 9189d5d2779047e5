// Conifers seen against the light.
#pragma once

#include <cstdint>
#include <vector>

namespace pictures {

// A row of conifers standing on a slope, as a shape.
class Forest {
 public:
  struct Place {
    float from = 0;  // left and right end
    float to = 0;
    float spacing = 0.02F;  // from one tree to the next, about
    float lowest = 0.04F;   // heights of the trees
    float highest = 0.12F;
  };

  // `ground(x)` is the height of the ground at x, y growing downwards.
  template <class Ground>
  Forest(const Place& place, std::uint32_t seed, Ground ground) {
    grow(place, seed);
    for (Tree& tree : trees_) tree.foot = ground(tree.x);
  }

  // True when a point lies inside a tree.
  bool covers(float x, float y) const;

 private:
  struct Tree {
    float x;
    float foot;
    float height;
    float width;
    std::uint32_t seed;
  };

  void grow(const Place& place, std::uint32_t seed);
  static bool covers(const Tree& tree, float x, float y);

  std::vector<Tree> trees_;  // from left to right
  float widest_ = 0;
};

}  // namespace pictures
