// One file of the hostile picture set.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/bitmap.h"

namespace support {

enum class Outcome {
  drawn,    // by every reader of the format
  refused,  // not opened, or nothing drawn
  either,   // as far as the machine's decoder goes
};

// What a picture that is drawn shows at its corners; nothing said where readers may differ.
struct Corners {
  base::Pixel topLeft = 0;
  base::Pixel bottomRight = 0;
};

struct HostilePicture {
  std::string name;  // of the file, without a folder
  std::string bytes;
  Outcome outcome = Outcome::either;
  std::optional<base::PixelSize> size = std::nullopt;  // of a picture that is drawn
  std::optional<Corners> corners = std::nullopt;
};

using HostilePictures = std::vector<HostilePicture>;

}  // namespace support
