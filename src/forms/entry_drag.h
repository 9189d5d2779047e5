// Dragging entries of a list to another place, with the pointer.
#pragma once

#include <optional>

#include "base/geometry.h"

namespace forms {

// What of a list with lines of equal height is in sight, in pixels.
struct ListSight {
  int top = 0;  // the first entry in sight
  int lineHeight = 1;
  int height = 0;
  int count = 0;  // of all entries

  // The entry at a height of the list's window, or -1.
  int entryAt(int y) const;

  // Between which entries a height lies: 0 before the first to `count` behind the last.
  int gapAt(int y) const;

  // By how many entries a list scrolls while the pointer waits above or below it: the more, the farther away;
  // 0 while it is inside.
  int scrollStepAt(int y) const;
};

// One drag at a time, from the button's going down to its going up. It begins when the pointer has left a
// small rectangle around the place where the button went down.
class EntryDrag {
 public:
  void press(base::PixelPoint at);

  // The pointer is there now, or the list has scrolled under it. `slack` is the size of the rectangle.
  void moveTo(base::PixelPoint at, const ListSight& sight, base::PixelSize slack);

  // The button went up, or the drag is given up. The gap to which something was dragged, if so.
  std::optional<int> release();

  bool isPressed() const { return start_.has_value(); }
  bool isDragging() const { return gap_ >= 0; }

  // Before which entry the mark stands; -1 without one.
  int gap() const { return gap_; }

 private:
  std::optional<base::PixelPoint> start_;
  int gap_ = -1;
};

}  // namespace forms
