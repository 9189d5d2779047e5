// Watches the user's input while the saver is on the screen, and says when it is to end.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/geometry.h"
#include "os/machine_facts.h"

namespace startup {

// The controls that take part in the watch.
enum class WatchedControl { Form, DisplayingPicture };

// Where the pointer is, as one control sees it.
struct PointedControl {
  WatchedControl control = WatchedControl::Form;
  float x = 0;  // in the control's own scale units
  float y = 0;
};

struct MouseMove {
  float x = 0;  // in the control's own scale units
  float y = 0;
  base::PixelPoint onScreen;  // the same place in pixels of the screen
  float secondsSinceMidnight = 0;
};

// How many counted moves end a show, by the loaded setting `mouseSensitivity`. Settings that could not be
// loaded to their end may lack the number.
double MovesToEnd(const std::string& mouseSensitivity);

// Every key and button ends the show at once; the mouse ends it when it has moved often enough within about
// two seconds. A move counts when it leads more than 3 units away from where the same handler saw the pointer
// last.
class InputWatch {
 public:
  struct Actions {
    std::function<void()> showCursor;
    std::function<void()> exitSaver;
  };

  // Where one handler saw the pointer last, in its own units.
  struct LastPlace {
    std::int32_t lastMouseX = 0;
    std::int32_t lastMouseY = 0;
    bool hasRecorded = false;

    void record(float x, float y);
  };

  // `threshold`: the number of counted moves that ends the show. Only a count that equals it exactly does.
  InputWatch(const os::SystemFacts& facts, double threshold, Actions actions);

  void Form_MouseDown() { actions_.exitSaver(); }
  void Form_KeyDown() { actions_.exitSaver(); }

  // May throw base::Overflow, for more than 32767 counted moves.
  void Form_MouseMove(const MouseMove& move) { filter(form_, move); }
  void DisplayingPicture_MouseMove(const MouseMove& move) { filter(picture_, move); }

  // A move over the cover of a further screen, whose place is measured from the cover's own top-left corner:
  // the rule about the edges is each window's own.
  void Cover_MouseMove(LastPlace& cover, const MouseMove& move) { filter(cover, move); }

  // Counts one move.
  void MouseMoved(float secondsSinceMidnight);

  // To be called after a control moved, was resized, appeared or hid, or the form's scale changed.
  // `controlAt` gives the watched control at a place of the screen, as it is now, or nothing when neither is
  // there. The handler whose control has come to be under the resting pointer then measures the next move
  // from there, so that only the user's hand is counted.
  using ControlAt = std::function<std::optional<PointedControl>(base::PixelPoint onScreen)>;
  void controlsMoved(const ControlAt& controlAt);

  // To be called after something else than a hand has moved the pointer: the screens were arranged
  // differently, or the program parked it. Each handler's next move only records where it is now; the covers'
  // places are their owner's to forget.
  void forgetPointer();

  std::int16_t moveCount() const { return moveCount_; }
  std::int32_t firstMoveTime() const { return firstMoveTime_; }

 private:
  void filter(LastPlace& handler, const MouseMove& move);

  bool guardsPassword_;
  double threshold_;
  Actions actions_;
  LastPlace form_;
  LastPlace picture_;
  std::optional<base::PixelPoint> pointer_;  // where the last event of any handler saw it
  std::int16_t moveCount_ = 0;
  std::int32_t firstMoveTime_ = 0;  // whole seconds since midnight; 0 = no window of time is open
};

}  // namespace startup
