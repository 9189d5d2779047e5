// What the first bytes of a picture file claim: its kind, its size.
#pragma once

#include <optional>
#include <string_view>

#include "base/geometry.h"

namespace pictures {

enum class PictureKind { bitmap, gif, jpeg, png };

struct PictureHeader {
  PictureKind kind = PictureKind::bitmap;

  // As stored, not turned upright. Nothing when it stands further on in the file than the given bytes reach,
  // or is no size at all.
  std::optional<base::PixelSize> size;

  // The most that a decoder may hold of each pixel at once: a whole picture as four bytes a pixel, and more
  // where the format has deeper pixels or is decoded as a whole before the first row comes.
  int bytesPerPixel = 4;
};

// Decided by what the file holds, whatever its name says. Nothing when it is no picture of a known kind.
std::optional<PictureHeader> ReadPictureHeader(std::string_view head);

}  // namespace pictures
