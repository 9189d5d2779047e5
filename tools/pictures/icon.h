// The program's icon: a glowing framed picture of mountains at dusk.
#pragma once

#include <string>
#include <vector>

namespace pictures {

// An icon file with a 32-bit picture of each side length, drawn anew for each; 256 pixels as PNG, the others
// as bitmaps.
std::string IconFile(const std::vector<int>& sides);

}  // namespace pictures
