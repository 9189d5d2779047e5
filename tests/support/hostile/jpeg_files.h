// JPEG files of every process, and with damage.
#pragma once

#include "support/hostile/hostile_picture.h"

namespace support {

// A small file that every reader draws.
std::string PlainJpeg();

HostilePictures HostileJpegs();

}  // namespace support
