// The pictures that come next, dealt to screens of different shapes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <span>
#include <vector>

namespace saver {

// Keeps what was dealt from the show's order and has not been taken: a picture that is passed over for one of
// a better shape stays in front, and when nothing in sight is better it is taken whatever its shape.
class UpcomingPictures {
 public:
  static constexpr std::size_t kInSight = 50;

  // The index that follows another one in the show's order.
  using Next = std::function<std::int16_t(std::int16_t behind)>;
  using Fits = std::function<bool(std::int16_t index)>;

  // The order begins anew, with this picture.
  void startWith(std::int16_t first);
  bool isEmpty() const { return pictures_.empty(); }

  // Takes the first picture in sight that fits and is none of `taken`, else the first that is none of them,
  // else the first.
  std::int16_t take(const Fits& fits, std::span<const std::int16_t> taken, const Next& next);

  // Gives pictures back that were taken and not shown, in their order.
  void putBack(const std::vector<std::int16_t>& pictures);

  const std::deque<std::int16_t>& inSight() const { return pictures_; }

 private:
  std::deque<std::int16_t> pictures_;
  std::int16_t last_ = 0;  // that the order has dealt
};

}  // namespace saver
