// The settings of a plain show, on which tests build theirs.
#pragma once

#include <map>
#include <string>

namespace support {

// By "section/key": centred pictures in order, one second each, black behind, no effect, no clock.
std::map<std::string, std::string> PlainShow();

}  // namespace support
