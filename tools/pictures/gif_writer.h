// Writes pictures of few colours as GIF files (GIF89a).
#pragma once

#include <string>

#include "pictures/palette.h"

namespace pictures {

// The bytes of the file.
std::string GifFile(const Indexed& picture);

}  // namespace pictures
