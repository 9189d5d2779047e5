// A process that saves settings again and again, for a test that kills it.
#pragma once

#include <string>

namespace e2e {

constexpr int kSavedPictures = 400;

// Saves a list of one kind ("odd" or "even") as the dialog saves it; every path and caption names its kind.
void SaveOnce(const std::string& programFolder, const std::string& kind);

// Saves both kinds in turn until the process is killed; a file "started" in the folder says that it has
// begun.
[[noreturn]] void SaveForEver(const std::string& programFolder);

}  // namespace e2e
