// The little picture in the display settings: a framed photo hangs in a landscape at dusk.
#pragma once

#include "pictures/canvas.h"

namespace pictures {

// 160 x 120 pixels.
Canvas PreviewPicture();

}  // namespace pictures
