// A picture seen through a frame that lies anywhere on it, to fractions of a pixel.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "base/bitmap.h"

namespace base {

// A part of a picture in its pixels. Edges lie between pixels: the whole picture is {0, 0, width, height}.
struct Frame {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  bool operator==(const Frame&) const = default;
};

// A place between two neighbours: `first` and the one after it. Of 256 parts the upper 16 bits of `weights`
// say how many the second has, and the lower 16 bits what the first has.
struct FramePlace {
  std::int32_t first;
  std::int32_t weights;

  std::uint32_t weightOfFirst() const { return static_cast<std::uint32_t>(weights) & 0xFFFF; }
  std::uint32_t weightOfSecond() const { return static_cast<std::uint32_t>(weights) >> 16; }
};

// The two loops over pixels of drawing in a frame. All that a machine has give the same pixels.
struct FrameLoops {
  // The channels of a row of at least two pixels at each of `count` places, with 7 fraction bits.
  void (*spread)(std::uint16_t* out, const Pixel* row, const FramePlace* places, int count);
  // `count` pixels between two rows that were spread.
  void (*mix)(Pixel* out, const std::uint16_t* above, const std::uint16_t* below, int count,
              FramePlace place);
};

// The fastest first. The last needs no vectors, and takes rows of one pixel too.
std::span<const FrameLoops> FrameLoopsHere();

// Draws what lies in a frame of an opaque picture at another size. Each pixel is mixed from the four around
// its place, which is exact to 1/256 of a pixel; a frame on whole pixels at their own size gives them as they
// are. Meant for frames of up to one and a half times the size drawn: for more, shrink the picture first.
// Beyond the outermost pixel centres the border pixel goes on, so that no frame shows anything but the
// picture.
class FramedPicture {
 public:
  // Neither size is empty; the frame lies inside the source.
  FramedPicture(PixelSize source, const Frame& frame, PixelSize drawn);

  // Draws `area` of the target, in which the drawn picture's top left corner lies at `at`. The area lies
  // inside both. `picture` is of the source's size.
  void draw(BitmapView target, PixelPoint at, const Bitmap& picture, PixelRect area) const;
  void draw(BitmapView target, PixelPoint at, const Bitmap& picture, PixelRect area,
            const FrameLoops& loops) const;

 private:
  std::vector<FramePlace> columns_;
  std::vector<FramePlace> rows_;
};

}  // namespace base
