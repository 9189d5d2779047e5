// Picture files, seen as the show and the dialog need them: upright, at any size.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "base/bitmap.h"
#include "base/geometry.h"

namespace pictures {

// One picture file whose header has been read. Its pixels are decoded by draw() alone.
class PictureFile {
 public:
  virtual ~PictureFile() = default;

  // In pixels, turned upright by the file's EXIF orientation; the file's resolution is ignored.
  virtual base::PixelSize size() const = 0;

  // The whole picture drawn at `drawn` pixels: shrunk by averaging over area, enlarged smoothly, transparent
  // parts transparent. Nothing when the file turns out to be broken or too large to decode.
  virtual std::optional<base::Bitmap> draw(base::PixelSize drawn) const = 0;
};

class PictureLoader {
 public:
  virtual ~PictureLoader() = default;

  // The picture at a UTF-8 path, or null when there is none that can be read (missing, unreadable, unknown
  // format). Never throws for what a file holds.
  virtual std::shared_ptr<const PictureFile> open(const std::string& path) = 0;
};

}  // namespace pictures
