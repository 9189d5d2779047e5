// Writes the head of JPEG files for tests: segments before the image data.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/geometry.h"

namespace support {

// 0xFF, the marker, the length, the content.
std::string JpegSegmentBytes(std::uint8_t marker, std::string_view content);

// A whole APP1 segment with an orientation among other entries, in either byte order.
std::string ExifSegment(int orientation, bool bigEndian);

// Start of image, `segments`, a start-of-frame segment for the size, a start of scan.
std::string JpegHead(std::string_view segments, base::PixelSize size);

}  // namespace support
