// The show, as far as the dialog lets it be seen: who starts the program fills this in.
#pragma once

#include <string>

#include "forms/live_view.h"

namespace dialog {

class LiveShow {
 public:
  struct Play {
    std::string settings;        // a settings file
    bool changesAtOnce = false;  // the second picture comes as soon as the first is there
    bool endsByPointer = false;  // the pointer over the view ends it for a while, as it ends the show
  };

  virtual ~LiveShow() = default;

  // Plays the show in small in the view, in the place of what is played anywhere.
  virtual void play(forms::LiveView& view, const Play& what) = 0;

  // Ends what is played in the view; its last picture stays. The view may go then.
  virtual void stop(const forms::LiveView& view) = 0;

  // Whether the view is where something is played, or was played last.
  virtual bool isIn(const forms::LiveView& view) const = 0;

  // The path of the picture that was seen last; empty before the first.
  virtual std::string shownPicture() const = 0;

  // The pointer has moved to a place of the view (twips).
  virtual void pointerMoved(const forms::LiveView& view, float x, float y) = 0;

  // Shows the show full screen with a settings file that is not the machine's, until the user ends it.
  virtual void tryOut(const std::string& settings) = 0;
};

}  // namespace dialog
