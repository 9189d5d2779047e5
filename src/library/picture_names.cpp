#include "library/picture_names.h"

#include <algorithm>

#include "base/text.h"

namespace library {

PictureNames::PictureNames(const std::vector<std::string>& further)
    : endings_({".bmp", ".dib", ".gif", ".jif", ".jpeg", ".jpg"}) {
  for (const std::string& ending : further) {
    if (ending.size() > 1 && ending.front() == '.') endings_.push_back(base::AsciiLower(ending));
  }
  std::sort(endings_.begin(), endings_.end());
}

bool PictureNames::contains(std::string_view fileName) const {
  const std::size_t dot = fileName.rfind('.');
  if (dot == std::string_view::npos) return false;
  return std::binary_search(endings_.begin(), endings_.end(), base::AsciiLower(fileName.substr(dot)));
}

}  // namespace library
