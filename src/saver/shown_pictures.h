// The pictures that a show has really shown, to step back and forth through them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace saver {

// A picture of the show's list. The index is where it stood when it was shown; the list may be another now.
struct ShownPicture {
  std::string path;
  std::int16_t index = 0;

  bool operator==(const ShownPicture&) const = default;
};

// Remembers the changes of a show, and which of them is on the screens.
class ShownPictures {
 public:
  static constexpr std::size_t kMost = 200;

  // A picture for each screen, the primary one's first.
  using Change = std::vector<ShownPicture>;

  // Whether a picture can still be shown.
  using IsThere = std::function<bool(const ShownPicture&)>;

  // The nearest change before the present one, or behind it, whose primary picture is there. It is the one
  // that comes next. Null, and another one comes next, when there is none.
  const Change* aimBack(const IsThere& isThere);
  const Change* aimForward(const IsThere& isThere);

  // True when one of the changes comes next.
  bool aims() const { return aim_.has_value(); }

  // The change that was aimed at turned out to have gone.
  void forgetAimed();

  // What was aimed at counts as if it had come. Without an aim: what is new counts so.
  void skipAimed();

  // A change has come to the screens: the one that was aimed at, else a new one. `seen`: there is a picture
  // to be seen on the primary screen; others are not remembered.
  void came(Change change, bool seen);

  std::size_t size() const { return changes_.size(); }

 private:
  std::size_t behindPresent() const { return present_ + (isPresentKnown_ ? 1 : 0); }

  std::deque<Change> changes_;  // the oldest first
  std::size_t present_ = 0;     // the place of the one on the screens, or where it would stand
  bool isPresentKnown_ = false;
  std::optional<std::size_t> aim_;
};

}  // namespace saver
