// The segments before a JPEG file's pixels (ITU-T T.81, annex B), and the orientation that a camera noted
// there or in a TIFF file (TIFF 6.0, section 2), read in the plainest way.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace fuzz {

struct NaiveSegment {
  int marker = 0;  // the byte after FF
  std::size_t begin = 0;
  std::size_t end = 0;  // of what stands behind the length, as far as there are bytes

  bool operator==(const NaiveSegment&) const = default;
};

// All of them up to the head of the first scan. What the standard leaves open: markers without a length are
// passed over wherever they stand, and the segments end at the first thing that is no marker, at a length
// that does not even count itself, and at the end of the image.
std::vector<NaiveSegment> NaiveSegments(std::string_view jpeg);

// 1 to 8 as the first directory of a TIFF block says first, 0 where it does not. The number may be a BYTE, a
// SHORT or a LONG, whatever count of values is given.
int NaiveTiffOrientation(std::string_view block);

// 1 to 8: that of a TIFF file, or of the first Exif block of a JPEG file that says one; 1 for anything else.
int NaiveOrientation(std::string_view file);

}  // namespace fuzz
