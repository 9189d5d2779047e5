// Which part of a content that is longer than its window is in sight, along one axis.
#pragma once

namespace forms {

// Everything in pixels.
class ScrollAxis {
 public:
  // The length of the content and of what shows it. The part in sight stays where it is as far as it can.
  void resize(int content, int view);

  int content() const { return content_; }
  int view() const { return view_; }

  // How far the content is moved towards its start; 0 while all of it is in sight.
  int offset() const { return offset_; }
  int farthest() const { return content_ > view_ ? content_ - view_ : 0; }

  // Moves to an offset, or as near as the content reaches. True when that changed anything.
  bool scrollTo(int offset);

  // Moves no farther than it takes to have a part of the content in sight; its start where it is longer than
  // the view. True when that changed anything.
  bool bringIntoView(int start, int end);

 private:
  int content_ = 0;
  int view_ = 0;
  int offset_ = 0;
};

}  // namespace forms
