// The wishes that a show has not carried out yet.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <limits>
#include <optional>

#include "saver/show_wish.h"

namespace saver {

// A step to another picture.
constexpr bool IsStep(ShowWish wish) { return wish == ShowWish::Next || wish == ShowWish::Back; }

// In the order in which they came. Of steps that follow each other the last stands for all, so nothing piles
// up, and steps are due ten times a second at most. Moments are milliseconds of one clock.
class WishQueue {
 public:
  static constexpr std::int64_t kStepMs = 100;
  static constexpr std::size_t kMost = 8;  // that wait; what comes then is lost

  void add(ShowWish wish);

  // A key that is held down wishes again and again. It is heard when it wishes for a step that can be taken
  // now, so nothing of it is left when it is let go. True when it was added.
  bool addRepeated(ShowWish wish, std::int64_t nowMs);

  bool isEmpty() const { return waiting_.empty(); }
  std::optional<ShowWish> first() const;
  bool isFirstDue(std::int64_t nowMs) const;

  // The first is carried out now.
  void takeFirst(std::int64_t nowMs);

  void clear() { waiting_.clear(); }

 private:
  bool isStepDue(std::int64_t nowMs) const { return nowMs >= nextStepMs_; }

  std::deque<ShowWish> waiting_;
  std::int64_t nextStepMs_ = std::numeric_limits<std::int64_t>::min();
};

}  // namespace saver
