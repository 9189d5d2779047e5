// What the first bytes of a picture file claim: its kind, its size.
#pragma once

#include <optional>
#include <string_view>

#include "base/geometry.h"

namespace os {

enum class PictureKind { bitmap, gif, jpeg, png };

struct PictureHeader {
  PictureKind kind = PictureKind::bitmap;

  // As stored, not turned upright. Nothing when it stands further on in the file than the given bytes reach,
  // or is no size at all.
  std::optional<base::PixelSize> size;
};

// Decided by what the file holds, whatever its name says. Nothing when it is no picture of a known kind.
std::optional<PictureHeader> ReadPictureHeader(std::string_view head);

}  // namespace os
