// How words and pictures move and darken so that a screen does not burn in: [extras] care.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/color.h"
#include "base/geometry.h"
#include "forms/texts.h"
#include "saver/stage.h"

namespace saver {

// Pixels; words are never further from their own place.
constexpr int kCareReach = 24;

// In which direction a text may leave its place: -1 to the left or up, 1 to the right or down, 0 to both
// sides.
struct Leeway {
  int x = 0;
  int y = 0;
};

// By how much a text stands beside its place in a minute, in pixels: on a small round path that begins near
// it and leads a few pixels on each minute.
base::PixelPoint WordsShift(std::int64_t minute, Leeway leeway);

// The same for a picture in the middle of the screen: by one pixel or two.
base::PixelPoint PictureShift(std::int64_t minute);

// The shift, less so far that what stands in the room at `place` is not cut off; none on an axis on which it
// does not stand inside.
base::PixelPoint KeptInside(base::PixelPoint shift, const base::PixelRect& place,
                            const base::PixelRect& room);

// True for colours that wear a screen out where they stand for long.
bool IsBright(base::PackedColor color);

// Takes care of one text of a stage; both outlive it. It does nothing before it is asked to.
class WordsCare {
 public:
  static constexpr std::int64_t kDimAfterMs = std::int64_t{10} * 60 * 1000;  // without another text

  WordsCare(const forms::Label& words, Stage& stage, Leeway leeway)
      : words_(words), stage_(stage), leeway_(leeway) {}

  // To be called every minute, and when the room, in pixels of the window, is another one.
  void moveOn(std::int64_t minute, const base::PixelRect& room, std::int64_t nowMs);

  // The text may be another one: that is as bright as its colour, and may need less of a shift.
  void look(std::int64_t nowMs);

 private:
  void shift();

  const forms::Label& words_;
  Stage& stage_;
  Leeway leeway_;
  std::optional<std::int64_t> minute_;
  base::PixelRect room_;
  std::string text_;
  std::int64_t textSinceMs_ = 0;
};

}  // namespace saver
