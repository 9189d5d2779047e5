// PNG files.
#pragma once

#include <string>

namespace pictures {

// A picture of `side` x `side` pixels from the top down, each as red, green, blue, alpha (straight).
std::string PngFile(int side, const std::string& pixels);

}  // namespace pictures
