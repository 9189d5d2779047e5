// The picture that the show brings next, made ready while the present one stands.
#pragma once

#include <functional>
#include <optional>

#include "os/clock.h"
#include "os/event_loop.h"
#include "pictures/ahead_loader.h"

namespace saver {

class NextPicture {
 public:
  NextPicture(pictures::AheadLoader& loader, os::EventLoop& loop, const os::Clock& clock)
      : loader_(loader), loop_(loop), clock_(clock) {}
  ~NextPicture() { forget(); }
  NextPicture(const NextPicture&) = delete;
  NextPicture& operator=(const NextPicture&) = delete;

  // Begins to make a picture ready, in the place of any other.
  void prepare(const pictures::Wish& wish);

  // Lets events run until the picture is ready or is known not to come; or until `over`.
  void wait(const pictures::Wish& wish, const std::function<bool()>& over);

  // Waits, and hands the picture out. Null when it cannot be had, not in time, or not before `over`.
  pictures::SharedPicture take(const pictures::Wish& wish, const std::function<bool()>& over);

  // It has been waited for, and cannot be had.
  bool isKnownToFail(const pictures::Wish& wish) const {
    return coming_ && coming_->answered && !coming_->picture && coming_->wish.isSameAs(wish);
  }

  void forget();

 private:
  struct Coming {
    pictures::Wish wish;
    pictures::AheadLoader::Ticket ticket = 0;
    bool answered = false;
    pictures::SharedPicture picture;
  };

  pictures::AheadLoader& loader_;
  os::EventLoop& loop_;
  const os::Clock& clock_;
  std::optional<Coming> coming_;
};

}  // namespace saver
