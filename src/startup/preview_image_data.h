// The preview's picture as the bytes of a GIF file, inside the program.
#pragma once

#include <cstddef>

namespace startup {

extern const unsigned char kPreviewImageFile[];
extern const std::size_t kPreviewImageFileSize;

}  // namespace startup
