// The pictures on the installer's pages.
#pragma once

#include "pictures/canvas.h"

namespace pictures {

// Beside the first and the last page: 164 x 314 pixels, as the installer's window is laid out for.
Canvas SetupSidePicture();

// At the right of the other pages' white head: 150 x 57 pixels, out of white at its left.
Canvas SetupHeadPicture();

}  // namespace pictures
