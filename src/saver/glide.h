// The path of a picture that glides while it is shown.
#pragma once

#include "base/framed.h"
#include "base/geometry.h"
#include "settings/extra_values.h"

namespace saver {

using settings::ParsePanZoom;

// Between two framings: the whole of a picture drawn somewhat larger than its place on the screen, and a part
// of it that fills the place pixel by pixel and lies at an edge or a corner. The picture grows from the first
// to the second, or shrinks from the second to the first. A function of time alone, so that every frame rate
// shows the same path.
class Glide {
 public:
  // For a place of `shown` pixels (not empty), over `durationMs` (0 stands still). The extra size is at most
  // `percent`, and less where the path would otherwise be longer than a pixel for each sixtieth of a second.
  // Turns that follow each other go in different directions, and one grows where the other shrinks.
  Glide(base::PixelSize shown, int percent, int durationMs, int turn);

  // The size at which the picture is to be drawn; that of the place where it stands still.
  base::PixelSize drawnSize() const { return drawn_; }
  base::PixelSize shownSize() const { return shown_; }
  bool standsStill() const { return drawn_ == shown_; }
  int durationMs() const { return durationMs_; }

  // What is seen after so much time: the first framing up to 0, the last from the duration on.
  base::Frame frameAt(double elapsedMs) const;

 private:
  base::PixelSize shown_;
  base::PixelSize drawn_;
  int durationMs_;
  double towardX_;  // the place of the near framing in the picture: 0 left, 1 right
  double towardY_;
  bool grows_;
};

// The share of the way that is done after a share of the time: starts and ends softly, and moves evenly
// between.
double SoftProgress(double share);

}  // namespace saver
