#include "saver/shown_pictures.h"

#include <utility>

namespace saver {

const ShownPictures::Change* ShownPictures::aimBack(const IsThere& isThere) {
  aim_.reset();
  for (std::size_t i = present_; i-- > 0 && !aim_;) {
    if (isThere(changes_[i].front())) aim_ = i;
  }
  return aim_ ? &changes_[*aim_] : nullptr;
}

const ShownPictures::Change* ShownPictures::aimForward(const IsThere& isThere) {
  aim_.reset();
  for (std::size_t i = behindPresent(); i < changes_.size() && !aim_; ++i) {
    if (isThere(changes_[i].front())) aim_ = i;
  }
  return aim_ ? &changes_[*aim_] : nullptr;
}

void ShownPictures::forgetAimed() {
  if (!aim_) return;
  changes_.erase(changes_.begin() + static_cast<std::ptrdiff_t>(*aim_));
  if (*aim_ < present_) {
    --present_;
  } else if (*aim_ == present_) {
    isPresentKnown_ = false;
  }
  aim_.reset();
}

void ShownPictures::skipAimed() {
  isPresentKnown_ = aim_.has_value();
  present_ = aim_.value_or(changes_.size());
  aim_.reset();
}

void ShownPictures::came(Change change, bool seen) {
  if (aim_ && !seen) {
    const std::size_t place = *aim_;
    forgetAimed();
    present_ = place;
    isPresentKnown_ = false;
    return;
  }
  if (!aim_ && seen) {
    if (changes_.size() == kMost) changes_.pop_front();
    aim_ = changes_.size();
    changes_.push_back(std::move(change));
  }
  skipAimed();
}

}  // namespace saver
