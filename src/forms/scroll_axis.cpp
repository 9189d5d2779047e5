#include "forms/scroll_axis.h"

#include <algorithm>

namespace forms {

void ScrollAxis::resize(int content, int view) {
  content_ = content;
  view_ = view;
  scrollTo(offset_);
}

bool ScrollAxis::scrollTo(int offset) {
  const int before = offset_;
  offset_ = std::clamp(offset, 0, farthest());
  return offset_ != before;
}

bool ScrollAxis::bringIntoView(int start, int end) {
  if (start < offset_ || end - start > view_) return scrollTo(start);
  if (end > offset_ + view_) return scrollTo(end - view_);
  return false;
}

}  // namespace forms
