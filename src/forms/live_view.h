// A little screen on a form, on which something moves.
#pragma once

#include <span>
#include <string>
#include <utility>

#include "base/bitmap.h"
#include "forms/control.h"

namespace forms {

// The largest size with the proportions of `shape` inside `box`, at least one pixel each way.
base::PixelSize FillInside(base::PixelSize shape, base::PixelSize box);

// Shows a picture that somebody else draws on, pixel by pixel in the middle of its place, with a line around
// it. Takes no keyboard.
class LiveView : public Control {
 public:
  LiveView(Form& form, std::string name) : Control(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::LiveView; }

  // The size of a view that a picture of `size` fills.
  static base::PixelSize placeFor(base::PixelSize size);

  // The size of a picture of a shape that fills the place, the line around it included.
  base::PixelSize frameSize(base::PixelSize shape) const;

  // What is shown, opaque; null: nothing.
  const base::SharedBitmap& frame() const { return frame_; }
  void setFrame(base::SharedBitmap frame) {
    if (frame_ == frame) return;
    frame_ = std::move(frame);
    changed(Change::Picture);
  }

  // Pixels in `areas` of the picture are others now.
  void frameDrawn(std::span<const base::PixelRect> areas);

  // Where the picture stands, in pixels from the control's top left corner.
  base::PixelRect framePlace() const;

 private:
  base::SharedBitmap frame_;
};

}  // namespace forms
