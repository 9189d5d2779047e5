// Pictures as the show and the dialog need them: upright, at any size.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/bitmap.h"
#include "base/geometry.h"
#include "pictures/picture_facts.h"

namespace pictures {

// Pixels in memory, or a file of which only the header has been read: its pixels are decoded when it is
// drawn.
class Picture {
 public:
  virtual ~Picture() = default;

  // In pixels, turned upright by what the camera noted; the file's resolution is ignored.
  virtual base::PixelSize size() const = 0;

  // The whole picture at a size of the caller's choice: shrunk by averaging over area, enlarged smoothly,
  // transparent parts transparent. Null when the file turns out to be broken, or too large to decode.
  virtual base::SharedBitmap drawnAt(base::PixelSize size) const = 0;

  // Of the picture at its own size only the pixels in `part`, which lies inside it: what the whole would show
  // there, without holding the whole where the picture is a file. Null as above.
  virtual base::SharedBitmap drawnPart(const base::PixelRect& part) const;

  // What the file says about itself, as far as anybody knows. May have to ask the disk when it was changed.
  virtual PictureFacts facts() const { return {}; }
};

using SharedPicture = std::shared_ptr<const Picture>;

// A picture of pixels that are there already.
SharedPicture MakePicture(base::SharedBitmap bitmap);

// Why a picture cannot be shown.
enum class PictureFailure {
  NotOpened,  // missing, in use, or of no kind that can be read
  NotDrawn,   // broken, changed since it was opened, or too large to decode
  Late,       // not there in time, and may come later
  Missing,    // where somebody has asked already whether it is there
};

class PictureLoader {
 public:
  virtual ~PictureLoader() = default;

  // The picture at a UTF-8 path, or null when there is none that can be read (missing, unreadable, unknown
  // format). Never throws for what a file holds.
  virtual SharedPicture open(const std::string& path) = 0;

  // Told of each picture that cannot be opened, and of each that was opened and cannot be drawn.
  std::function<void(const std::string& path, PictureFailure failure)> onFailure;
};

}  // namespace pictures
