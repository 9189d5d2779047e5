// The orientation that a camera noted in a JPEG file (Exif 2.3, IFD0 tag 0x0112).
#pragma once

#include <string_view>

#include "base/orientation.h"

namespace pictures {

// From the file's first bytes; 256 KiB hold every Exif block, which is at most 64 KiB and stands near the
// beginning. Upright when there is none, or none that can be understood.
base::Orientation ReadExifOrientation(std::string_view jpegHead);

}  // namespace pictures
