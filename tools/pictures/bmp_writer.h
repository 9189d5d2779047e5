// Pictures as bitmap files.
#pragma once

#include <string>

#include "pictures/canvas.h"

namespace pictures {

// A bitmap file of 24 bits a pixel.
std::string BmpFile(const Canvas& picture);

}  // namespace pictures
