// Chance that is the same at the same place in every run: the grain of clouds, ridges and stars.
#pragma once

#include <cstdint>

namespace pictures {

// In [0, 1), different for every (x, y, seed).
float Chance(int x, int y, std::uint32_t seed);

// Smooth hills of height -1 to 1, about one for each unit of x and y.
float Hills(float x, float y, std::uint32_t seed);

// Hills with smaller hills on them, `octaves` times, each half as wide and `roughness` as high.
float Rough(float x, float y, std::uint32_t seed, int octaves, float roughness = 0.5F);

// As Rough, but with sharp crests: 0 in the valleys, 1 on the highest crests.
float Crests(float x, float y, std::uint32_t seed, int octaves);

}  // namespace pictures
