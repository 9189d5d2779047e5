// A mountain lake at dusk.
#pragma once

#include "pictures/canvas.h"

namespace pictures {

// Looks right at any size; composed for a width of 1.6 and a height of 1.
Scene DuskLandscape();

}  // namespace pictures
