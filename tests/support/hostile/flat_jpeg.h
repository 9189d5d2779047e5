// Writes JPEG files of flat blocks (ITU-T T.81): few codes, so that every process can be written by hand.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/geometry.h"

namespace support {

// Blocks of 8 x 8 pixels, each of one level a component; no component is reduced.
struct FlatJpeg {
  base::PixelSize blocks{3, 2};
  int precision = 8;  // 8 or 12 bits
  bool progressive =
      false;  // the levels in a first scan, the (empty) rest of each component in one of its own
  int restartInterval = 0;     // in blocks; 0: none
  bool restartMarkers = true;  // false: announced and left out
  bool adobe = false;          // with the segment that says that four components are inks as they are

  // levels[component][block], 0 to 2^precision - 1; one component is grey, three are Y, Cb, Cr, four inks.
  std::vector<std::vector<int>> levels;

  std::string bytes() const;
};

// Levels of a picture whose first block is darker than all others, in every component.
std::vector<std::vector<int>> DarkCorner(int components, int blocks, int dark, int bright);

}  // namespace support
