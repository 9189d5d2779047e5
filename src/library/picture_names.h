// Which files are pictures, by the endings of their names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace library {

class PictureNames {
 public:
  // The endings that every list of pictures takes, and `further` ones, each with its dot.
  explicit PictureNames(const std::vector<std::string>& further = {});

  bool contains(std::string_view fileName) const;

 private:
  std::vector<std::string> endings_;  // in lower case, sorted
};

}  // namespace library
