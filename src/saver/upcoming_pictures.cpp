#include "saver/upcoming_pictures.h"

#include <algorithm>

namespace saver {

void UpcomingPictures::startWith(std::int16_t first) {
  pictures_ = {first};
  last_ = first;
}

std::int16_t UpcomingPictures::take(const Fits& fits, std::span<const std::int16_t> taken, const Next& next) {
  while (pictures_.size() < kInSight) {
    last_ = next(last_);
    pictures_.push_back(last_);
  }
  const auto isFree = [taken](std::int16_t index) { return std::ranges::find(taken, index) == taken.end(); };
  auto found =
      std::ranges::find_if(pictures_, [&](std::int16_t index) { return isFree(index) && fits(index); });
  if (found == pictures_.end()) found = std::ranges::find_if(pictures_, isFree);
  if (found == pictures_.end()) found = pictures_.begin();
  const std::int16_t index = *found;
  pictures_.erase(found);
  return index;
}

void UpcomingPictures::putBack(const std::vector<std::int16_t>& pictures) {
  pictures_.insert(pictures_.begin(), pictures.begin(), pictures.end());
}

}  // namespace saver
