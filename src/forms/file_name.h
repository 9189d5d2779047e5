// File names and paths as the folder lists read them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace forms {

// True when a file name matches one of the patterns between ";" ("*.bmp;*.gif"): "*" stands for any text, "?"
// for one character; the case of Latin letters does not matter.
bool MatchesPatterns(std::string_view name, std::string_view patterns);

// The folder without a backslash at its end; a drive's root keeps it.
std::string WithoutTrailingSlash(std::string folder);

// The drive's root and every folder on the way to `path`, itself included, outermost first.
std::vector<std::string> FoldersOnTheWay(const std::string& path);

// The paths of a selection as the system's dialog writes it, its parts between zeros: a folder and the names
// of files in it, or one whole path.
std::vector<std::string> FilesOfSelection(std::string_view selection);

}  // namespace forms
