#include "forms/file_name.h"

#include <algorithm>

#include "base/text.h"
#include "os/paths.h"

namespace forms {

namespace {

bool IsRoot(std::string_view path) { return path.size() <= 3 && path.size() >= 2 && path[1] == ':'; }

// Greedy matching with one way back: to the last star.
bool Matches(std::string_view name, std::string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t starName = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      starName = n;
    } else if (p < pattern.size() &&
               (pattern[p] == '?' || base::AsciiLower(pattern[p]) == base::AsciiLower(name[n]))) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++starName;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace

bool MatchesPatterns(std::string_view name, std::string_view patterns) {
  while (!patterns.empty()) {
    const std::size_t end = std::min(patterns.find(';'), patterns.size());
    if (end > 0 && Matches(name, patterns.substr(0, end))) return true;
    patterns.remove_prefix(std::min(end + 1, patterns.size()));
  }
  return false;
}

std::string WithoutTrailingSlash(std::string folder) {
  while (!folder.empty() && folder.back() == '\\' && !IsRoot(folder)) folder.pop_back();
  return folder;
}

std::vector<std::string> FoldersOnTheWay(const std::string& path) {
  std::vector<std::string> way;
  const std::string whole = WithoutTrailingSlash(path);
  std::size_t start = whole.rfind("\\\\", 0) == 0 ? 2 : 0;
  for (std::size_t slash = whole.find('\\', start); slash != std::string::npos;
       slash = whole.find('\\', slash + 1)) {
    std::string folder = whole.substr(0, slash);
    if (IsRoot(folder)) folder += '\\';
    if (folder != whole) way.push_back(std::move(folder));
  }
  if (!whole.empty()) way.push_back(whole);
  return way;
}

std::vector<std::string> FilesOfSelection(std::string_view selection) {
  const std::string folder(selection.substr(0, selection.find('\0')));
  std::vector<std::string> files;
  for (std::size_t end = folder.size(); end < selection.size();) {
    const std::size_t begin = end + 1;
    end = std::min(selection.find('\0', begin), selection.size());
    std::string name(selection.substr(begin, end - begin));
    if (name.empty()) continue;
    // What the system found elsewhere, such as in a search, comes with its whole path.
    const bool isWhole = name.find('\\') != std::string::npos;
    files.push_back(isWhole ? std::move(name) : os::JoinPath(folder, name));
  }
  if (files.empty() && !folder.empty()) files.push_back(folder);
  return files;
}

}  // namespace forms
