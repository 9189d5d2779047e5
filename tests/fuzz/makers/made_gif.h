// GIF files of many shapes, legal ones and others, as a recipe decides.
#pragma once

#include <string>

#include "fuzz/recipe.h"

namespace fuzz {

// Extensions of every kind in any order, a frame of up to 8 x 40 pixels with its codes, and what comes behind
// it.
std::string MadeGif(Recipe& recipe);

}  // namespace fuzz
