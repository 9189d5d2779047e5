#include "library/picture_names.h"

#include <algorithm>
#include <set>

#include "base/text.h"

namespace library {

namespace {

// A decoder's maker says what its endings are: what would mean something else in a pattern is none.
bool IsEnding(std::string_view text) {
  return text.size() > 1 && text.front() == '.' && text.find_first_of("*?;|\\/:") == std::string_view::npos;
}

}  // namespace

PictureNames::PictureNames(const std::vector<std::string>& further)
    : endings_({".bmp", ".dib", ".gif", ".jif", ".jpeg", ".jpg"}) {
  for (const std::string& ending : further) add(ending);
  sort();
}

PictureNames PictureNames::ofPatterns(std::string_view patterns) {
  PictureNames names;
  names.endings_.clear();
  while (!patterns.empty()) {
    const std::size_t end = std::min(patterns.find(';'), patterns.size());
    if (patterns.front() == '*') names.add(patterns.substr(1, end - 1));
    patterns.remove_prefix(std::min(end + 1, patterns.size()));
  }
  names.sort();
  return names;
}

void PictureNames::add(std::string_view ending) {
  if (IsEnding(ending)) endings_.push_back(base::AsciiLower(ending));
}

void PictureNames::sort() { std::sort(endings_.begin(), endings_.end()); }

bool PictureNames::contains(std::string_view fileName) const {
  const std::size_t dot = fileName.rfind('.');
  if (dot == std::string_view::npos) return false;
  return std::binary_search(endings_.begin(), endings_.end(), base::AsciiLower(fileName.substr(dot)));
}

std::string PatternsWith(std::string_view patterns, const std::vector<std::string>& endings) {
  const PictureNames known = PictureNames::ofPatterns(patterns);
  std::set<std::string> further;
  for (const std::string& ending : endings) {
    if (IsEnding(ending) && !known.contains(ending)) further.insert(base::AsciiLower(ending));
  }
  std::string all(patterns);
  for (const std::string& ending : further) all += ";*" + ending;
  return all;
}

}  // namespace library
