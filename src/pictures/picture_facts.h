// What a picture file says about itself besides its pixels: in Exif (2.3) and XMP (ISO 16684-1).
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "os/clock.h"

namespace pictures {

// Texts are UTF-8 where their bytes are that, else in the code page of whoever wrote them. They may hold line
// ends and anything else.
struct PictureFacts {
  std::string title = {};                  // or the description; empty where there is neither
  std::string camera = {};                 // maker and model
  std::optional<os::LocalTime> date = {};  // when the picture was taken, else when its file was changed

  bool operator==(const PictureFacts&) const = default;
};

// From the first bytes of a JPEG or a TIFF file, as many of them as the orientation is read from; the date
// only when the picture was taken. What cannot be understood is left out.
PictureFacts ReadPictureFacts(std::string_view head);

}  // namespace pictures
