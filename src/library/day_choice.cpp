#include "library/day_choice.h"

#include <algorithm>
#include <limits>

#include "library/path_hash.h"

namespace library {

std::uint64_t DayChoice::numberOf(std::string_view folder, std::string_view picture) const {
  return Scramble(PathHash(picture, PathHash(folder)) ^ Scramble(day_));
}

std::uint64_t DayChoice::limitFor(std::vector<std::uint64_t> numbers, std::size_t most) {
  if (most == 0 || numbers.size() <= most) return std::numeric_limits<std::uint64_t>::max();
  const auto last = numbers.begin() + static_cast<std::ptrdiff_t>(most - 1);
  std::nth_element(numbers.begin(), last, numbers.end());
  return *last;
}

void DayChoice::cut(std::vector<std::string>& pictures, std::string_view folder, std::size_t most) const {
  if (pictures.size() <= most) return;
  std::vector<std::uint64_t> numbers;
  numbers.reserve(pictures.size());
  for (const std::string& picture : pictures) numbers.push_back(numberOf(folder, picture));
  const std::uint64_t limit = limitFor(std::move(numbers), most);
  std::erase_if(pictures, [&](const std::string& picture) { return numberOf(folder, picture) > limit; });
  if (pictures.size() > most) pictures.resize(most);
}

}  // namespace library
