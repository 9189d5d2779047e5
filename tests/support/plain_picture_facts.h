// A second reading of what pictures say about themselves, written plainly from the formats' own descriptions.
#pragma once

#include <string_view>

#include "pictures/picture_facts.h"

namespace support {

// The same as pictures::ReadPictureFacts, by other ways.
pictures::PictureFacts PlainPictureFacts(std::string_view head);

}  // namespace support
