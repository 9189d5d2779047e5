// An even choice among more pictures than a show can have, another one every day.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace library {

// Takes the pictures with the smallest numbers of the day, so that a choice from several choices is the
// choice from all: each list can be cut while it grows, and all together once more.
class DayChoice {
 public:
  explicit DayChoice(std::uint64_t day) : day_(day) {}

  // Leaves at most `most` of the pictures, in their order. Their whole paths are `folder` and the text.
  void cut(std::vector<std::string>& pictures, std::string_view folder, std::size_t most) const;

  std::uint64_t numberOf(std::string_view folder, std::string_view picture) const;

  // The number up to which, itself included, `most` of the numbers are; the largest when no more are given.
  static std::uint64_t limitFor(std::vector<std::uint64_t> numbers, std::size_t most);

  bool operator==(const DayChoice&) const = default;

 private:
  std::uint64_t day_;
};

}  // namespace library
