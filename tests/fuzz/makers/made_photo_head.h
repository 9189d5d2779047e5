// The heads of photos of many shapes, legal ones and others, as a recipe decides.
#pragma once

#include <string>

#include "fuzz/recipe.h"

namespace fuzz {

// A TIFF block with a directory of none to thousands of entries in any order, with any types, counts and
// values, in either byte order, anywhere.
std::string MadeTiffBlock(Recipe& recipe);

// A JPEG file up to its pixels or further: segments of every kind in any order, whole ones and broken ones.
std::string MadeJpegHead(Recipe& recipe);

// A head of a BMP and of a PNG file with any size.
std::string MadeBitmapHead(Recipe& recipe);
std::string MadePngHead(Recipe& recipe);

}  // namespace fuzz
