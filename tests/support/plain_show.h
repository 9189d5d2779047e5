// The settings of a plain show, on which tests build theirs.
#pragma once

#include <map>
#include <string>

namespace support {

// By "section/key".
using Settings = std::map<std::string, std::string>;

// Centred pictures in order, one second each, black behind, no effect, no clock.
Settings PlainShow();

// The settings file.
std::string IniText(const Settings& settings);

}  // namespace support
