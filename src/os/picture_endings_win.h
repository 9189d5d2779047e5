// Which files the system's picture decoders read.
#pragma once

#include <string>
#include <vector>

namespace os {

// The endings of file names that the installed decoders name as theirs (".png"), in no order; empty when they
// cannot be asked. On any thread.
std::vector<std::string> DecodersPictureEndings();

}  // namespace os
