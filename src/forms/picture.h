// A picture that a picture box can hold: a loaded file that decodes when it is drawn, or pixels in memory.
#pragma once

#include <memory>
#include <optional>

#include "base/bitmap.h"
#include "pictures/pictures.h"

namespace forms {

class Picture {
 public:
  virtual ~Picture() = default;

  // In pixels.
  virtual base::PixelSize size() const = 0;

  // The whole picture at a size of one's own choice; null when it cannot be decoded.
  virtual base::SharedBitmap drawnAt(base::PixelSize size) const = 0;
};

using SharedPicture = std::shared_ptr<const Picture>;

// Pixels that are there already.
SharedPicture MakePicture(base::SharedBitmap bitmap);

// A file; nothing is decoded before it is drawn.
SharedPicture MakePicture(std::shared_ptr<const pictures::PictureFile> file);

}  // namespace forms
