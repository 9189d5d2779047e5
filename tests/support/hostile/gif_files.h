// GIF files with bad colours, bad codes and large claims.
#pragma once

#include "support/hostile/hostile_picture.h"

namespace support {

// A small file that every reader draws.
std::string PlainGif();

HostilePictures HostileGifs();

}  // namespace support
