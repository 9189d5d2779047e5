// A JPEG file with arithmetic coding.
#pragma once

#include <string>

namespace support {

// 24 x 16 grey pixels, the first block dark. Made by "cjpeg -grayscale -arithmetic -quality 75" of Debian's
// libjpeg-turbo-progs 2.1.5 from a PPM file of our own.
std::string ArithmeticJpeg();

}  // namespace support
