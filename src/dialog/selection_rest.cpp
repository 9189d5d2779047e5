#include "dialog/selection_rest.h"

#include <utility>

namespace dialog {

SelectionRest::SelectionRest(os::EventLoop& loop, std::function<void()> onRest)
    : timer_(loop, kRestMs), onRest_(std::move(onRest)) {
  timer_.onTimer = [this] {
    const bool waited = waiting_;
    settle();
    if (waited) onRest_();
  };
}

bool SelectionRest::moved() {
  const bool rested = !timer_.enabled();
  if (!rested) {
    waiting_ = true;
    timer_.setEnabled(false);
  }
  timer_.setEnabled(true);
  return rested;
}

void SelectionRest::settle() {
  timer_.setEnabled(false);
  waiting_ = false;
}

}  // namespace dialog
