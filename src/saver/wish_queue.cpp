#include "saver/wish_queue.h"

namespace saver {

void WishQueue::add(ShowWish wish) {
  if (IsStep(wish) && !waiting_.empty() && IsStep(waiting_.back())) {
    waiting_.back() = wish;
  } else if (waiting_.size() < kMost) {
    waiting_.push_back(wish);
  }
}

bool WishQueue::addRepeated(ShowWish wish, std::int64_t nowMs) {
  if (!IsStep(wish) || !waiting_.empty() || !isStepDue(nowMs)) return false;
  waiting_.push_back(wish);
  return true;
}

std::optional<ShowWish> WishQueue::first() const {
  return waiting_.empty() ? std::nullopt : std::optional(waiting_.front());
}

bool WishQueue::isFirstDue(std::int64_t nowMs) const {
  return !waiting_.empty() && (!IsStep(waiting_.front()) || isStepDue(nowMs));
}

void WishQueue::takeFirst(std::int64_t nowMs) {
  if (IsStep(waiting_.front())) nextStepMs_ = nowMs + kStepMs;
  waiting_.pop_front();
}

}  // namespace saver
