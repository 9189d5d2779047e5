#include "saver/next_picture.h"

#include <utility>

namespace saver {

void NextPicture::prepare(const pictures::Wish& wish) {
  if (coming_ && coming_->wish.isSameAs(wish)) return;
  forget();
  coming_ = Coming{wish, 0, false, nullptr};
  coming_->ticket = loader_.wish(wish, [this](pictures::SharedPicture picture) {
    coming_->answered = true;
    coming_->picture = std::move(picture);
  });
}

void NextPicture::wait(const pictures::Wish& wish, const std::function<bool()>& over) {
  prepare(wish);
  // An event may ask for another picture meanwhile, when the screen has changed.
  while (coming_ && coming_->wish.isSameAs(wish) && !coming_->answered && !over()) {
    loop_.waitUntil(clock_.tickMs() + pictures::AheadLoader::kPatienceMs);
  }
}

pictures::SharedPicture NextPicture::take(const pictures::Wish& wish, const std::function<bool()>& over) {
  wait(wish, over);
  if (!coming_ || !coming_->answered || !coming_->wish.isSameAs(wish)) return nullptr;
  return std::exchange(coming_, std::nullopt)->picture;
}

void NextPicture::forget() {
  if (coming_ && !coming_->answered) loader_.drop(coming_->ticket);
  coming_.reset();
}

}  // namespace saver
