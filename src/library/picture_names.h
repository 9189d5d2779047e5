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

  // Exactly the endings in patterns such as "*.bmp;*.gif".
  static PictureNames ofPatterns(std::string_view patterns);

  bool contains(std::string_view fileName) const;

 private:
  void add(std::string_view ending);
  void sort();

  std::vector<std::string> endings_;  // in lower case, sorted
};

// The patterns, with one more behind them for each ending (such as ".png") that they lack, in alphabetical
// order.
std::string PatternsWith(std::string_view patterns, const std::vector<std::string>& endings);

}  // namespace library
