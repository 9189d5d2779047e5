// Picture files that mean no good: a set for everything that opens pictures.
#pragma once

#include "support/hostile/hostile_picture.h"

namespace support {

// Every file of the set: empty, cut short at each tenth, under a wrong name, with wrong numbers, bad colours
// and codes, large claims, and in the rarer forms of each format. About 300 files, some 2 MB.
HostilePictures AllHostilePictures();

}  // namespace support
