// What the head of a picture file claims, read field by field in the plainest way.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace fuzz {

struct NaiveHeader {
  char kind = 0;  // the first letter of BMP, GIF, JPEG, PNG
  int width = 0;  // both 0 where there is no size, or one that cannot be
  int height = 0;
  int bytesPerPixel = 4;
};

// Of every kind but GIF.
std::optional<NaiveHeader> NaivePictureHeader(std::string_view head);

}  // namespace fuzz
