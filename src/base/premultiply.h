// Brings straight pixels into the form in which the program keeps them.
#pragma once

#include <cstddef>

#include "base/bitmap.h"

namespace base {

// Multiplies the colours of straight pixels by their alpha, in place. True when all of them are opaque.
bool Premultiply(Pixel* pixels, std::size_t count);

// Sets every alpha to opaque, in place.
void MakeOpaque(Pixel* pixels, std::size_t count);

}  // namespace base
