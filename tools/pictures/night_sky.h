// A clear northern night over a lake: the Milky Way, an aurora, stars.
#pragma once

#include "pictures/canvas.h"

namespace pictures {

// Looks right at any size; composed for a width of 1.6 and a height of 1.
Scene NightSky();

}  // namespace pictures
