// A second reading of the templates of captions: cut into pieces first, put together then.
#pragma once

#include <string>

#include "saver/caption_template.h"

namespace support {

// The same as saver::FillCaptionTemplate, by other ways.
std::string PlainCaption(const std::string& pattern, const saver::CaptionWords& words);

}  // namespace support
