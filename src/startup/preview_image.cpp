#include "startup/preview_image.h"

#include <string_view>

#include "pictures/gif_first_frame.h"
#include "startup/preview_image_data.h"

namespace startup {

base::Bitmap PreviewImage() {
  const std::string_view file(reinterpret_cast<const char*>(kPreviewImageFile), kPreviewImageFileSize);
  const auto frame = pictures::GifFirstFrame::decode(file);
  if (!frame) return {};  // cannot be: a test decodes these very bytes
  base::Bitmap picture(frame->size());
  for (int y = 0; y < picture.size().height; ++y) frame->row(y, picture.row(y));
  picture.setOpaque(true);
  return picture;
}

}  // namespace startup
